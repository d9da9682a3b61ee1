#pragma once

#include <QString>
#include <array>
#include <cstddef>
#include <cstdint>

#include "quarn/Export.h"
#include "quarn/FieldGroup.h"

namespace quarn {

class DataFileReader;
class DataFileWriter;

/// The fields recorded at a set of points: which fields are recorded, and the files that hold them.
///
/// A result is a set of small files that share a base name B. All numbers are in the byte order of the machine.
///
///     B_info.bin                            which fields, and how many points: below
///     B_geom.bin                            x, y, z of the cell of each point, int32
///     B_timesteps.bin                       the time of each recorded time step, float
///     B_frequencies.bin                     the frequencies, float; but see MultiPointResultWriter
///     B_transient_Ex_scattered_ts0.bin      one component at time step 0: a float for each point
///     B_transient_Jx_ts0.bin
///     B_steady_Exr_total_freq0.bin          the real part of one component at frequency 0: a float for each point
///     B_steady_Jxi_freq0.bin                an imaginary part
///
/// The info file takes 13 bytes:
///
///     offset  type     meaning
///          0  char     "Rmpt"
///          4  uint8    serialization version, 0
///          5  uint32   groups: bits 31 to 25 the transient ones, 24 to 21 steady E, H, J and B; the others are 0
///          9  int32    number of points
///
/// Units are SI: s, Hz, V/m, A/m, T and A/m^2.
class QUARN_EXPORT MultiPointResult {
public:
    /// Three components that are recorded together by time, in the order of FieldGroup.
    enum TransientGroup : std::int32_t {
        TransientScatteredE,
        TransientTotalE,
        TransientScatteredH,
        TransientTotalH,
        TransientScatteredB,
        TransientTotalB,
        TransientJ,
    };

    /// Three complex components that are recorded together by frequency.
    enum SteadyGroup : std::int32_t { SteadyTotalE, SteadyTotalH, SteadyTotalB, SteadyJ };

    /// A component of a transient group. Each has a file.
    enum Component : std::int32_t { X, Y, Z };

    /// The real or the imaginary part of a component of a steady group. Each has a file.
    enum Part : std::int32_t { Xr, Yr, Zr, Xi, Yi, Zi };

    /// @name All groups, components and parts
    /// @{
    static constexpr std::array<TransientGroup, 7> transientGroups{TransientScatteredE,
                                                                   TransientTotalE,
                                                                   TransientScatteredH,
                                                                   TransientTotalH,
                                                                   TransientScatteredB,
                                                                   TransientTotalB,
                                                                   TransientJ};
    static constexpr std::array<SteadyGroup, 4> steadyGroups{SteadyTotalE, SteadyTotalH, SteadyTotalB, SteadyJ};
    static constexpr std::array<Component, 3> components{X, Y, Z};
    static constexpr std::array<Part, 6> parts{Xr, Yr, Zr, Xi, Yi, Zi};
    /// @}

    MultiPointResult() = default;
    /// Whether there is each of the transient groups, then each of those of a steady state.
    MultiPointResult(bool scatteredE, bool totalE, bool scatteredH, bool totalH, bool scatteredB, bool totalB, bool j,
                     bool steadyTotalE, bool steadyTotalH, bool steadyTotalB, bool steadyJ);

    bool collectTransientScatteredE() const { return collects(TransientScatteredE); }
    bool collectTransientTotalE() const { return collects(TransientTotalE); }
    bool collectTransientScatteredH() const { return collects(TransientScatteredH); }
    bool collectTransientTotalH() const { return collects(TransientTotalH); }
    bool collectTransientScatteredB() const { return collects(TransientScatteredB); }
    bool collectTransientTotalB() const { return collects(TransientTotalB); }
    bool collectTransientJ() const { return collects(TransientJ); }
    bool collectSteadyTotalE() const { return collects(SteadyTotalE); }
    bool collectSteadyTotalH() const { return collects(SteadyTotalH); }
    bool collectSteadyTotalB() const { return collects(SteadyTotalB); }
    bool collectSteadyJ() const { return collects(SteadyJ); }

    bool collects(TransientGroup group) const { return (m_groups & maskOf(group)) != 0; }
    bool collects(SteadyGroup group) const { return (m_groups & maskOf(group)) != 0; }

    /// The fields that are recorded in a group.
    static constexpr FieldGroup fieldsOf(TransientGroup group) { return static_cast<FieldGroup>(group); }
    static constexpr FieldGroup fieldsOf(SteadyGroup group) {
        constexpr FieldGroup fields[] = {FieldGroup::TotalE, FieldGroup::TotalH, FieldGroup::TotalB, FieldGroup::J};
        return fields[group];
    }

    /// As in the info file; files of components may still be shorter.
    int getNumberOfPoints() const { return m_numberOfPoints; }

    const QString& getBaseFileName() const { return m_baseFileName; }

    /// Only version 0 is supported: nothing of a result of any other version is read or written.
    static bool supportsSerializationVersion(std::uint8_t version) { return version == 0; }
    std::uint8_t getSerializationVersion() const { return m_serializationVersion; }
    void setSerializationVersion(std::uint8_t version) { m_serializationVersion = version; }

    /// @name Names of the files
    /// Each consists of the base name and a suffix; the file need not exist.
    /// @{
    QString getInfoFileName() const;
    QString getGeometryFileName() const;
    QString getTimestepsFileName() const;
    QString getFrequenciesFileName() const;
    QString getComponentFileName(TransientGroup group, Component component, int timestep) const;
    QString getComponentFileName(SteadyGroup group, Part part, int frequency) const;
    /// @}

protected:
    void setBaseFileName(const QString& name) { m_baseFileName = name; }
    void setNumberOfPoints(int number) { m_numberOfPoints = number; }

    /// Bits of unknown groups make reading fail; the known groups have been stored by then.
    bool readInfo();
    bool writeInfo() const;

    /// False also when the version is not supported.
    bool openForReading(DataFileReader& reader, const QString& fileName) const;
    bool openForWriting(DataFileWriter& writer, const QString& fileName) const;

private:
    static std::uint32_t maskOf(TransientGroup group) { return 1U << infoOf(fieldsOf(group)).transientBit; }
    static std::uint32_t maskOf(SteadyGroup group) { return 1U << infoOf(fieldsOf(group)).steadyBit; }

    std::uint32_t m_groups = 0;  ///< as in the info file
    QString m_baseFileName;
    std::uint8_t m_serializationVersion = 0;
    std::int32_t m_numberOfPoints = 0;
};

}  // namespace quarn
