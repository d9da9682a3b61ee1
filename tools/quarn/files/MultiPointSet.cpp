#include "files/MultiPointSet.h"

#include "Console.h"
#include "files/CsvWriter.h"
#include "files/ResultFile.h"

namespace quarn::tool {

namespace {

using Result = MultiPointResult;

constexpr Result::Component transientComponents[] = {Result::X, Result::Y, Result::Z};
constexpr Result::Part steadyComponents[] = {Result::Xr, Result::Xi, Result::Yr, Result::Yi, Result::Zr, Result::Zi};

// The engine writes both lists before anything else. A list that no group needs may be missing.
void readLists(MultiPointSet& set) {
    const bool hasTimes = set.reader.readTimesteps(set.times);
    const bool hasFrequencies = set.reader.readFrequencies(set.frequencies);
    for (const SetGroup& group : set.groups) {
        if (group.isSteady() ? hasFrequencies : hasTimes) continue;
        throw unreadable(group.isSteady() ? set.reader.getFrequenciesFileName() : set.reader.getTimestepsFileName());
    }
}

}  // namespace

QString SetGroup::name() const {
    const QString fields = QString::fromLatin1(m_info.name).replace(u' ', u'-');
    return (m_isSteady ? QStringLiteral("steady-") : QStringLiteral("transient-")) + fields;
}

QString SetGroup::columns() const {
    return vectorColumns(text(m_info.name), unit(), m_isSteady ? Components::Complex : Components::Real);
}

void SetGroup::choose(MultiPointResultReader& reader, int index) const {
    m_isSteady ? reader.beginFrequency(index) : reader.beginTimestep(index);
}

bool SetGroup::begin(MultiPointResultReader& reader, int index, int component) const {
    checkPathLength(fileName(reader, index, component));
    return m_isSteady
               ? reader.beginSteady(static_cast<Result::SteadyGroup>(m_group), steadyComponents[component])
               : reader.beginTransient(static_cast<Result::TransientGroup>(m_group), transientComponents[component]);
}

bool SetGroup::read(MultiPointResultReader& reader, int component, std::vector<float>& values,
                    std::size_t count) const {
    return m_isSteady ? reader.readSteadyBlock(steadyComponents[component], values, count)
                      : reader.readTransientBlock(transientComponents[component], values, count);
}

QString SetGroup::fileName(const MultiPointResult& result, int index, int component) const {
    return m_isSteady ? result.getComponentFileName(
                            static_cast<Result::SteadyGroup>(m_group), steadyComponents[component], index)
                      : result.getComponentFileName(
                            static_cast<Result::TransientGroup>(m_group), transientComponents[component], index);
}

MultiPointSet::MultiPointSet(const InputFile& infoFile) {
    const QString ending = text("_info.bin");
    const auto problem = [&](const QString& text) { return FileProblem(infoFile.name(), text); };
    if (!infoFile.path().endsWith(ending)) {
        throw problem(
            text("is the info file of a multi-point result; give it by its own name, BASE_info.bin, beside the other "
                 "files of the result"));
    }
    checkPathLength(infoFile.path());
    if (!reader.beginResultReading(infoFile.path().chopped(ending.size()))) {
        throw problem(text("is the info file of a multi-point result, but cut short, damaged or not of version 0"));
    }
    for (const Result::TransientGroup group : Result::transientGroups) {
        if (reader.collects(group)) groups.emplace_back(group);
    }
    for (const Result::SteadyGroup group : Result::steadyGroups) {
        if (reader.collects(group)) groups.emplace_back(group);
    }
    if (reader.getNumberOfPoints() < 0) {
        throw problem(text("is damaged: it says that there are %1 points").arg(reader.getNumberOfPoints()));
    }
    readLists(*this);
}

}  // namespace quarn::tool
