#include "MultiPointSet.h"

#include "Console.h"

namespace quarn::tool {

namespace {

using Result = MultiPointResult;

const SetGroup allGroups[] = {
    {"transient-scattered-E", "E", "V/m", Result::TransientScatteredE},
    {"transient-total-E", "E", "V/m", Result::TransientTotalE},
    {"transient-scattered-H", "H", "A/m", Result::TransientScatteredH},
    {"transient-total-H", "H", "A/m", Result::TransientTotalH},
    {"transient-scattered-B", "B", "T", Result::TransientScatteredB},
    {"transient-total-B", "B", "T", Result::TransientTotalB},
    {"transient-J", "J", "A/m²", Result::TransientJ},
    {"steady-total-E", "E", "V/m", Result::SteadyTotalE},
    {"steady-total-H", "H", "A/m", Result::SteadyTotalH},
    {"steady-total-B", "B", "T", Result::SteadyTotalB},
    {"steady-J", "J", "A/m²", Result::SteadyJ},
};

constexpr Result::Component transientComponents[] = {Result::X, Result::Y, Result::Z};
constexpr Result::Part steadyComponents[] = {Result::Xr, Result::Xi, Result::Yr, Result::Yi, Result::Zr, Result::Zi};

// The engine makes both lists before anything else, but only one that groups need is missed.
void readLists(MultiPointSet& set) {
    const bool hasTimes = set.reader.readTimesteps(set.times);
    const bool hasFrequencies = set.reader.readFrequencies(set.frequencies);
    for (const SetGroup& group : set.groups) {
        if (group.isSteady() ? hasFrequencies : hasTimes) continue;
        throw FileProblem(group.isSteady() ? set.reader.getFrequenciesFileName() : set.reader.getTimestepsFileName(),
                          QStringLiteral("cannot be read"));
    }
}

}  // namespace

bool SetGroup::isIn(const MultiPointResult& result) const {
    return m_isSteady ? result.collects(static_cast<Result::SteadyGroup>(m_group))
                      : result.collects(static_cast<Result::TransientGroup>(m_group));
}

QStringList SetGroup::components() const {
    QStringList names;
    for (const char* axis : {"x", "y", "z"}) {
        const QString name = QLatin1String(m_symbol) + QLatin1String(axis);
        names << (m_isSteady ? QStringList{name + u'r', name + u'i'} : QStringList{name});
    }
    return names;
}

void SetGroup::choose(MultiPointResultReader& reader, int index) const {
    m_isSteady ? reader.beginFrequency(index) : reader.beginTimestep(index);
}

bool SetGroup::begin(MultiPointResultReader& reader, int component) const {
    return m_isSteady
               ? reader.beginSteady(static_cast<Result::SteadyGroup>(m_group), steadyComponents[component])
               : reader.beginTransient(static_cast<Result::TransientGroup>(m_group), transientComponents[component]);
}

bool SetGroup::read(MultiPointResultReader& reader, int component, std::vector<float>& values,
                    std::size_t count) const {
    return m_isSteady ? reader.readSteadyBlock(steadyComponents[component], values, count)
                      : reader.readTransientBlock(transientComponents[component], values, count);
}

MultiPointSet::MultiPointSet(const QString& infoFile) {
    const QString ending = QStringLiteral("_info.bin");
    if (!infoFile.endsWith(ending)) {
        throw FileProblem(infoFile, QStringLiteral("the info file of a multi-point result is named BASE_info.bin"));
    }
    if (!reader.beginResultReading(infoFile.chopped(ending.size()))) {
        throw FileProblem(infoFile, QStringLiteral("not an info file of a version that is known, or cut short"));
    }
    for (const SetGroup& group : allGroups) {
        if (group.isIn(reader)) groups.push_back(group);
    }
    if (reader.getNumberOfPoints() < 0) {
        throw FileProblem(infoFile, QStringLiteral("says that it has %1 points").arg(reader.getNumberOfPoints()));
    }
    readLists(*this);
}

int MultiPointSet::indicesOf(const SetGroup& group) const {
    return static_cast<int>(group.isSteady() ? frequencies.size() : times.size());
}

}  // namespace quarn::tool
