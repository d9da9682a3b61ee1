#include "quarn/MultiPointResultDeleter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <climits>

#include "quarn/DataFileReader.h"
#include "quarn/LongPathUtil.h"

namespace quarn {

namespace {

bool removeFile(const QString& path) { return QFile::remove(resolveLongPath(path, true)); }

/// The files of a result that are there. A list may claim more indices than can be tried one by one.
class ComponentFiles {
public:
    explicit ComponentFiles(const QString& baseFileName)
        : m_folder(baseFileName.chopped(QFileInfo(baseFileName).fileName().size())),
          m_names(QDir(resolveLongPath(m_folder.isEmpty() ? QStringLiteral(".") : m_folder, true))
                      .entryList(QDir::Files | QDir::System | QDir::Hidden, QDir::Unsorted)) {}

    /// Those that are named as the given one, whose index is 0, up to and without `numIndices`.
    void remove(const QString& first, int numIndices) const {
        const int at = first.lastIndexOf(u'0') - m_folder.size();
        const QString before = first.mid(m_folder.size(), at), behind = first.mid(m_folder.size() + at + 1);
        for (const QString& name : m_names) {
            if (!name.startsWith(before) || !name.endsWith(behind)) continue;
            const QString index = name.mid(at, name.size() - before.size() - behind.size());
            const unsigned number = index.toUInt();
            const bool isListed = number < static_cast<unsigned>(numIndices) && index == QString::number(number);
            if (isListed) removeFile(m_folder + name);
        }
    }

private:
    QString m_folder;
    QStringList m_names;
};

template <class Groups, class Components>
void removeComponents(const MultiPointResult& result, const QString& baseFileName, const Groups& groups,
                      const Components& components, int numIndices) {
    const ComponentFiles files(baseFileName);
    for (const auto group : groups) {
        if (!result.collects(group)) continue;
        for (const auto component : components) {
            files.remove(result.getComponentFileName(group, component, 0), numIndices);
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
    removeComponents(*this, baseFileName, transientGroups, components, numIndices(getTimestepsFileName()));
    removeFile(getTimestepsFileName());
    removeComponents(*this, baseFileName, steadyGroups, parts, numIndices(getFrequenciesFileName()));
    removeFile(getFrequenciesFileName());
    return removeFile(getInfoFileName());
}

}  // namespace quarn
