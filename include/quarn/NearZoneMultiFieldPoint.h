#pragma once

#include <QString>
#include <cstdint>

#include "quarn/Export.h"
#include "quarn/ivec3.h"

namespace quarn {

/// A request for the history of fields at one point: which fields, in which timesteps, into which file. The classes
/// that derive from it say where the point lies.
class QUARN_EXPORT NearZoneMultiFieldPoint {
public:
    virtual ~NearZoneMultiFieldPoint();
    NearZoneMultiFieldPoint& operator=(const NearZoneMultiFieldPoint& other) = default;

    bool collectTotalE() const { return m_collectTotalE; }
    void setCollectTotalE(bool collect) { m_collectTotalE = collect; }
    bool collectScatteredE() const { return m_collectScatteredE; }
    void setCollectScatteredE(bool collect) { m_collectScatteredE = collect; }
    bool collectTotalH() const { return m_collectTotalH; }
    void setCollectTotalH(bool collect) { m_collectTotalH = collect; }
    bool collectScatteredH() const { return m_collectScatteredH; }
    void setCollectScatteredH(bool collect) { m_collectScatteredH = collect; }
    bool collectTotalB() const { return m_collectTotalB; }
    void setCollectTotalB(bool collect) { m_collectTotalB = collect; }
    bool collectScatteredB() const { return m_collectScatteredB; }
    void setCollectScatteredB(bool collect) { m_collectScatteredB = collect; }
    /// The current density.
    bool collectJ() const { return m_collectJ; }
    void setCollectJ(bool collect) { m_collectJ = collect; }

    /// First and last timestep and the distance between them; -1 where nothing was asked for.
    int getMinTimestep() const { return m_minTimestep; }
    void setMinTimestep(int timestep) { m_minTimestep = timestep; }
    int getMaxTimestep() const { return m_maxTimestep; }
    void setMaxTimestep(int timestep) { m_maxTimestep = timestep; }
    int getDeltaTimestep() const { return m_deltaTimestep; }
    void setDeltaTimestep(int timesteps) { m_deltaTimestep = timesteps; }

    const QString& filename() const { return m_filename; }
    void setFilename(const QString& name) { m_filename = name; }

    /// Points of two classes are never equal.
    bool operator==(const NearZoneMultiFieldPoint& other) const;
    bool operator!=(const NearZoneMultiFieldPoint& other) const { return !(*this == other); }

protected:
    NearZoneMultiFieldPoint() = default;
    NearZoneMultiFieldPoint(const NearZoneMultiFieldPoint& other) = default;
    NearZoneMultiFieldPoint(bool collectScatteredE, bool collectTotalE, bool collectScatteredH, bool collectTotalH,
                            bool collectScatteredB, bool collectTotalB, bool collectJ, int minTimestep, int maxTimestep,
                            int deltaTimestep, const QString& filename);

private:
    bool m_collectScatteredE = false;
    bool m_collectTotalE = false;
    bool m_collectScatteredH = false;
    bool m_collectTotalH = false;
    bool m_collectScatteredB = false;
    bool m_collectTotalB = false;
    bool m_collectJ = false;
    std::int32_t m_minTimestep = -1;
    std::int32_t m_maxTimestep = -1;
    std::int32_t m_deltaTimestep = -1;
    QString m_filename;
};

/// A point that is a cell of the grid.
class QUARN_EXPORT NearZoneMultiFieldIndexedPoint : public NearZoneMultiFieldPoint {
public:
    NearZoneMultiFieldIndexedPoint() = default;
    NearZoneMultiFieldIndexedPoint(const ivec3& point, bool collectScatteredE, bool collectTotalE,
                                   bool collectScatteredH, bool collectTotalH, bool collectScatteredB,
                                   bool collectTotalB, bool collectJ, int minTimestep, int maxTimestep,
                                   int deltaTimestep, const QString& filename);

    int getX() const { return m_x; }
    void setX(int x) { m_x = x; }
    int getY() const { return m_y; }
    void setY(int y) { m_y = y; }
    int getZ() const { return m_z; }
    void setZ(int z) { m_z = z; }

    bool operator==(const NearZoneMultiFieldIndexedPoint& other) const;
    bool operator!=(const NearZoneMultiFieldIndexedPoint& other) const { return !(*this == other); }

private:
    std::int32_t m_x = 0;
    std::int32_t m_y = 0;
    std::int32_t m_z = 0;
};

/// A point anywhere in the model, in metres; the engine interpolates the fields there.
class QUARN_EXPORT NearZoneMultiFieldInterpolatedPoint : public NearZoneMultiFieldPoint {
public:
    NearZoneMultiFieldInterpolatedPoint() = default;
    NearZoneMultiFieldInterpolatedPoint(float x, float y, float z, bool collectScatteredE, bool collectTotalE,
                                        bool collectScatteredH, bool collectTotalH, bool collectScatteredB,
                                        bool collectTotalB, bool collectJ, int minTimestep, int maxTimestep,
                                        int deltaTimestep, const QString& filename);

    float getX() const { return m_x; }
    void setX(float x) { m_x = x; }
    float getY() const { return m_y; }
    void setY(float y) { m_y = y; }
    float getZ() const { return m_z; }
    void setZ(float z) { m_z = z; }

    bool operator==(const NearZoneMultiFieldInterpolatedPoint& other) const;
    bool operator!=(const NearZoneMultiFieldInterpolatedPoint& other) const { return !(*this == other); }

private:
    float m_x = 0.0F;
    float m_y = 0.0F;
    float m_z = 0.0F;
};

}  // namespace quarn
