#pragma once

#include <QString>
#include <vector>

#include "quarn/MultiPointResultReader.h"

namespace quarn::tool {

class InputFile;

/// A group of a multi-point result, transient or steady: files that each hold one component at one time step or
/// frequency.
class SetGroup {
public:
    explicit SetGroup(MultiPointResult::TransientGroup group)
        : m_isSteady(false), m_group(group), m_info(infoOf(MultiPointResult::fieldsOf(group))) {}
    explicit SetGroup(MultiPointResult::SteadyGroup group)
        : m_isSteady(true), m_group(group), m_info(infoOf(MultiPointResult::fieldsOf(group))) {}

    /// "transient-total-E"
    QString name() const;
    QString unit() const { return QString::fromUtf8(m_info.unit); }
    bool isSteady() const { return m_isSteady; }

    int numberOfComponents() const { return m_isSteady ? 6 : 3; }

    /// The columns of a table, with commas between them; a steady group has two for each component.
    QString columns() const;

    void choose(MultiPointResultReader& reader, int index) const;
    /// Opens the file of a component at the chosen index; false when it cannot be opened. Throws a FileProblem when the
    /// path is too long.
    bool begin(MultiPointResultReader& reader, int index, int component) const;
    bool read(MultiPointResultReader& reader, int component, std::vector<float>& values, std::size_t count) const;

private:
    QString fileName(const MultiPointResult& result, int index, int component) const;

    bool m_isSteady;
    int m_group;
    FieldGroupInfo m_info;
};

/// A multi-point result with its lists.
struct MultiPointSet {
    /// Throws a FileProblem when the file is not named BASE_info.bin or is refused, or when a list that its groups need
    /// cannot be read.
    explicit MultiPointSet(const InputFile& infoFile);

    /// The time steps or the frequencies that are recorded so far.
    const std::vector<float>& listFor(const SetGroup& group) const { return group.isSteady() ? frequencies : times; }

    MultiPointResultReader reader;
    std::vector<SetGroup> groups;  ///< those that the result has
    std::vector<float> times;
    std::vector<float> frequencies;
};

}  // namespace quarn::tool
