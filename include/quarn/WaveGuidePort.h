#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <vector>

#include "quarn/Cartesian3D.h"
#include "quarn/Description.h"
#include "quarn/Engine.h"
#include "quarn/Export.h"
#include "quarn/TermType.h"

namespace quarn {

/// Which two of power, current and voltage define a waveguide's characteristic impedance.
enum class ImpedanceType : std::int32_t { Zpi = 0, Zpv = 1, Zvi = 2 };

/// A port that excites or terminates a waveguide with one of its modes.
class QUARN_EXPORT WaveGuidePort {
public:
    enum WaveGuidePortType : std::int32_t { Modal = 0, Voltage = 1, Current = 2 };

    WaveGuidePort();
    WaveGuidePort(const WaveGuidePort& other);
    WaveGuidePort& operator=(const WaveGuidePort& other);
    virtual ~WaveGuidePort();

    /// Never finds anything: a waveguide port has no values to check.
    virtual void checkValidity(QStringList& errors, QStringList& warnings, Engine engine) const;

    WaveGuidePortType getWaveGuidePortType() const { return m_portType; }
    void setWaveGuidePortType(WaveGuidePortType type) { m_portType = type; }
    double getWaveGuideAmplitude() const { return m_amplitude; }
    void setWaveGuideAmplitude(double amplitude) { m_amplitude = amplitude; }

    /// In radians.
    double getWaveGuidePhase() const { return m_phase; }
    void setWaveGuidePhase(double phase) { m_phase = phase; }

    /// In ohms.
    double getWaveGuideRefResistance() const { return m_refResistance; }
    void setWaveGuideRefResistance(double resistance) { m_refResistance = resistance; }

    /// From the port to its reference plane, in metres.
    double getWaveGuideOffset() const { return m_offset; }
    void setWaveGuideOffset(double offset) { m_offset = offset; }

    /// The pair of waveguide and mode number identifies a port; -1 means unset.
    int getWaveGuideNumber() const { return m_waveGuideNumber; }
    void setWaveGuideNumber(int number) { m_waveGuideNumber = number; }
    int getWaveGuideModeNumber() const { return m_modeNumber; }
    void setWaveGuideModeNumber(int number) { m_modeNumber = number; }
    ImpedanceType getWaveGuideImpedanceType() const { return m_impedanceType; }
    void setWaveGuideImpedanceType(ImpedanceType type) { m_impedanceType = type; }

    /// The ends of the port's voltage path, moved to the grid.
    const tavrix::Cartesian3D& getSnappedHead() const { return m_snappedHead; }
    void setSnappedHead(const tavrix::Cartesian3D& head) { m_snappedHead = head; }
    const tavrix::Cartesian3D& getSnappedTail() const { return m_snappedTail; }
    void setSnappedTail(const tavrix::Cartesian3D& tail) { m_snappedTail = tail; }

    /// The outline of the port plane.
    const std::vector<tavrix::Cartesian3D>& planarPolygon() const { return m_planarPolygon; }
    void setPlanarPolygon(const std::vector<tavrix::Cartesian3D>& polygon) { m_planarPolygon = polygon; }
    TermType termType() const { return m_termType; }
    void setTermType(TermType type) { m_termType = type; }
    const QString& getOutputFilename() const { return m_outputFilename; }
    void setOutputFilename(const QString& name) { m_outputFilename = name; }
    const QString& getWaveGuideModeName() const { return m_modeName; }
    void setWaveGuideModeName(const QString& name) { m_modeName = name; }

    /// The part of the output file name between its first and its last underscore.
    QString getWaveGuidePortNameFromFilename() const;

    /// A description in several lines.
    QString qstr() const;

private:
    friend struct blocktext::Description<WaveGuidePort>;

    WaveGuidePortType m_portType = Voltage;
    double m_amplitude = 1.0;
    double m_phase = 0.0;
    double m_refResistance = 50.0;
    double m_offset = 0.0;
    std::int32_t m_waveGuideNumber = -1;
    std::int32_t m_modeNumber = -1;
    ImpedanceType m_impedanceType = ImpedanceType::Zpi;
    tavrix::Cartesian3D m_snappedHead;
    tavrix::Cartesian3D m_snappedTail;
    std::vector<tavrix::Cartesian3D> m_planarPolygon;
    TermType m_termType = TermType::InputOutput;
    QString m_outputFilename;
    QString m_modeName = QStringLiteral("noname");
};

/// The waveguide ports of a project, ordered by waveguide and mode number when they are inserted; a loaded list keeps
/// the order of its file. The manager does not own the ports: a copy shares them, and whoever created them deletes
/// them. Null pointers are left out.
class QUARN_EXPORT WaveGuidePortManager {
public:
    WaveGuidePortManager() = default;
    explicit WaveGuidePortManager(const std::vector<WaveGuidePort*>& ports);
    WaveGuidePortManager(const WaveGuidePortManager& other);
    WaveGuidePortManager& operator=(const WaveGuidePortManager& other);
    ~WaveGuidePortManager();

    /// Adds a port and puts the list in order; of listed ports with the same numbers the last one stays. Throws a
    /// std::runtime_error, with the list as it was, when there is a port with these numbers already. getNumberOfPorts()
    /// is updated only by cacheVariables().
    void insert(WaveGuidePort* port);

    void cacheVariables() { m_numberOfPorts = getNumberOfWaveguidePorts(); }

    /// Empties the list without deleting the ports.
    void clearWaveguidePorts();

    const std::vector<WaveGuidePort*>& getWaveguidePorts() const { return m_ports; }

    /// The index is not checked.
    WaveGuidePort* getWaveGuidePort(int index) const { return m_ports[static_cast<std::size_t>(index)]; }
    unsigned int getNumberOfWaveguidePorts() const { return static_cast<unsigned int>(m_ports.size()); }
    unsigned int getNumberOfPorts() const { return m_numberOfPorts; }

    /// Appends findings about the list as a whole, then those of each port.
    void checkValidity(QStringList& errors, QStringList& warnings, Engine engine) const;

private:
    std::vector<WaveGuidePort*> m_ports;
    std::uint32_t m_numberOfPorts = 0;
};

}  // namespace quarn
