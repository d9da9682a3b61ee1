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

// The component files of a result. Their names are taken from a listing of the folder, since a list may claim more
// indices than can be tried one by one; where the folder cannot be listed, names are tried up to a limit.
class ComponentFiles {
public:
    explicit ComponentFiles(const MultiPointResult& result)
        : m_result(result),
          m_folder(result.getBaseFileName().chopped(QFileInfo(result.getBaseFileName()).fileName().size())),
          m_names(QDir(resolveLongPath(m_folder.isEmpty() ? QStringLiteral(".") : m_folder, true))
                      .entryList(QDir::Files | QDir::System | QDir::Hidden, QDir::Unsorted)) {}

    template <class Groups, class Components>
    void remove(const Groups& groups, const Components& components, int numIndices) const {
        // The info file exists, since it has been read: a listing without it has failed.
        const bool isListed = m_names.contains(m_result.getInfoFileName().mid(m_folder.size()));
        const int numTried = std::min(numIndices, MultiPointResultDeleter::mostIndicesTried + 1);
        for (const auto group : groups) {
            if (!m_result.collects(group)) continue;
            for (const auto component : components) {
                if (isListed) removeListed(m_result.getComponentFileName(group, component, 0), numIndices);
                for (int i = 0; !isListed && i < numTried; ++i) {
                    removeFile(m_result.getComponentFileName(group, component, i));
                }
            }
        }
    }

private:
    // Removes the files named like `first`, which has index 0, with any index below `numIndices`.
    void removeListed(const QString& first, int numIndices) const {
        const int at = first.lastIndexOf(u'0') - m_folder.size();
        const QString before = first.mid(m_folder.size(), at), behind = first.mid(m_folder.size() + at + 1);
        for (const QString& name : m_names) {
            if (!name.startsWith(before) || !name.endsWith(behind)) continue;
            const QString index = name.mid(at, name.size() - before.size() - behind.size());
            const unsigned number = index.toUInt();
            const bool isCounted = number < static_cast<unsigned>(numIndices) && index == QString::number(number);
            if (isCounted) removeFile(m_folder + name);
        }
    }

    const MultiPointResult& m_result;
    QString m_folder;
    QStringList m_names;
};

}  // namespace

// One more than the list has, since a writer may have been stopped before it listed the last index; 0 without a list.
int MultiPointResultDeleter::numIndices(const QString& listFileName) const {
    DataFileReader list;
    if (!openForReading(list, listFileName)) return 0;
    return static_cast<int>(std::min(list.bytesLeft() / static_cast<long>(sizeof(float)), INT_MAX - 1L)) + 1;
}

bool MultiPointResultDeleter::deleteResult(const QString& baseFileName) {
    setBaseFileName(baseFileName);
    if (!readInfo()) return false;
    removeFile(getGeometryFileName());
    const ComponentFiles files(*this);
    files.remove(transientGroups, components, numIndices(getTimestepsFileName()));
    removeFile(getTimestepsFileName());
    files.remove(steadyGroups, parts, numIndices(getFrequenciesFileName()));
    removeFile(getFrequenciesFileName());
    return removeFile(getInfoFileName());
}

}  // namespace quarn
