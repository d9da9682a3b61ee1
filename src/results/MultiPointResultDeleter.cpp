#include "quarn/MultiPointResultDeleter.h"

#include <QFile>
#include <algorithm>
#include <climits>

#include "quarn/DataFileReader.h"
#include "quarn/LongPathUtil.h"

namespace quarn {

namespace {

bool removeFile(const QString& path) { return QFile::remove(resolveLongPath(path, true)); }

template <class Groups, class Components>
void removeComponents(const MultiPointResult& result, const Groups& groups, const Components& components,
                      int numIndices) {
    for (const auto group : groups) {
        if (!result.collects(group)) continue;
        for (int index = 0; index < numIndices; ++index) {
            for (const auto component : components) removeFile(result.getComponentFileName(group, component, index));
        }
    }
}

}  // namespace

// One more than the list has, as a writer may have been stopped before it listed the last; none without a list.
int MultiPointResultDeleter::numIndices(const QString& listFileName) const {
    DataFileReader list;
    if (!openForReading(list, listFileName)) return 0;
    return static_cast<int>(std::min(list.bytesLeft() / static_cast<long>(sizeof(float)), INT_MAX - 1L)) + 1;
}

bool MultiPointResultDeleter::deleteResult(const QString& baseFileName) {
    setBaseFileName(baseFileName);
    if (!readInfo()) return false;
    removeFile(getGeometryFileName());
    removeComponents(*this, transientGroups, components, numIndices(getTimestepsFileName()));
    removeFile(getTimestepsFileName());
    removeComponents(*this, steadyGroups, parts, numIndices(getFrequenciesFileName()));
    removeFile(getFrequenciesFileName());
    return removeFile(getInfoFileName());
}

}  // namespace quarn
