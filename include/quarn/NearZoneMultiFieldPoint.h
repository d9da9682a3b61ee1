#pragma once

#include <QString>
#include <array>
#include <cstdint>

#include "quarn/Description.h"
#include "quarn/Export.h"
#include "quarn/FieldGroup.h"
#include "quarn/ivec3.h"

namespace quarn {

/// A request for the history of fields at one point: which fields, in which timesteps, into which file. The classes
/// that derive from it say where the point lies.
class QUARN_EXPORT NearZoneMultiFieldPoint {
public:
    virtual ~NearZoneMultiFieldPoint();
    NearZoneMultiFieldPoint& operator=(const NearZoneMultiFieldPoint& other) = default;

    bool collects(FieldGroup group) const { return m_groups[static_cast<std::size_t>(group)]; }
    void setCollects(FieldGroup group, bool collect) { m_groups[static_cast<std::size_t>(group)] = collect; }

    bool collectTotalE() const { return collects(FieldGroup::TotalE); }
    void setCollectTotalE(bool collect) { setCollects(FieldGroup::TotalE, collect); }
    bool collectScatteredE() const { return collects(FieldGroup::ScatteredE); }
    void setCollectScatteredE(bool collect) { setCollects(FieldGroup::ScatteredE, collect); }
    bool collectTotalH() const { return collects(FieldGroup::TotalH); }
    void setCollectTotalH(bool collect) { setCollects(FieldGroup::TotalH, collect); }
    bool collectScatteredH() const { return collects(FieldGroup::ScatteredH); }
    void setCollectScatteredH(bool collect) { setCollects(FieldGroup::ScatteredH, collect); }
    bool collectTotalB() const { return collects(FieldGroup::TotalB); }
    void setCollectTotalB(bool collect) { setCollects(FieldGroup::TotalB, collect); }
    bool collectScatteredB() const { return collects(FieldGroup::ScatteredB); }
    void setCollectScatteredB(bool collect) { setCollects(FieldGroup::ScatteredB, collect); }
    bool collectJ() const { return collects(FieldGroup::J); }
    void setCollectJ(bool collect) { setCollects(FieldGroup::J, collect); }

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
    NearZoneMultiFieldPoint(bool scatteredE, bool totalE, bool scatteredH, bool totalH, bool scatteredB, bool totalB,
                            bool j, int minTimestep, int maxTimestep, int deltaTimestep, const QString& filename);

private:
    friend struct blocktext::Description<NearZoneMultiFieldPoint>;

    std::array<bool, fieldGroups.size()> m_groups{};  ///< by FieldGroup
    std::int32_t m_minTimestep = -1;
    std::int32_t m_maxTimestep = -1;
    std::int32_t m_deltaTimestep = -1;
    QString m_filename;
};

/// A point that is a cell of the grid.
class QUARN_EXPORT NearZoneMultiFieldIndexedPoint : public NearZoneMultiFieldPoint {
public:
    NearZoneMultiFieldIndexedPoint() = default;
    NearZoneMultiFieldIndexedPoint(const ivec3& point, bool scatteredE, bool totalE, bool scatteredH, bool totalH,
                                   bool scatteredB, bool totalB, bool j, int minTimestep, int maxTimestep,
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
    friend struct blocktext::Description<NearZoneMultiFieldIndexedPoint>;

    std::int32_t m_x = 0;
    std::int32_t m_y = 0;
    std::int32_t m_z = 0;
};

/// A point anywhere in the model, in metres; the engine interpolates the fields there.
class QUARN_EXPORT NearZoneMultiFieldInterpolatedPoint : public NearZoneMultiFieldPoint {
public:
    NearZoneMultiFieldInterpolatedPoint() = default;
    NearZoneMultiFieldInterpolatedPoint(float x, float y, float z, bool scatteredE, bool totalE, bool scatteredH,
                                        bool totalH, bool scatteredB, bool totalB, bool j, int minTimestep,
                                        int maxTimestep, int deltaTimestep, const QString& filename);

    float getX() const { return m_x; }
    void setX(float x) { m_x = x; }
    float getY() const { return m_y; }
    void setY(float y) { m_y = y; }
    float getZ() const { return m_z; }
    void setZ(float z) { m_z = z; }

    bool operator==(const NearZoneMultiFieldInterpolatedPoint& other) const;
    bool operator!=(const NearZoneMultiFieldInterpolatedPoint& other) const { return !(*this == other); }

private:
    friend struct blocktext::Description<NearZoneMultiFieldInterpolatedPoint>;

    float m_x = 0.0F;
    float m_y = 0.0F;
    float m_z = 0.0F;
};

}  // namespace quarn
