// Joining partial SAR files. All are looked at first, as the number of records stands before the records; then they are
// copied one after the other, with one of them open at a time.

#include <QFileInfo>
#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

#include "foundation/FileReplacement.h"
#include "quarn/LongPathUtil.h"
#include "quarn/SarResult.h"

namespace quarn {

namespace {

struct PartialFile {
    QString name;
    SARPlane::Plane plane;
    int planeIndex;
    int numRecords;
    bool complete;
};

// One call, with the places for its messages.
class Combination {
public:
    Combination(const QString& output, QString& error, QString& warning)
        : m_output(output), m_error(error), m_warning(warning) {}

    bool run(const QStringList& names) { return inspect(names) && countRecords() && write(); }

private:
    // Every partial file that exists, all of one plane.
    bool inspect(const QStringList& names) {
        for (const QString& name : names) {
            if (!QFileInfo::exists(resolveLongPath(name, true))) continue;
            SarResultReader reader;
            if (!reader.beginResultReading(name)) return openingFailed(name);
            const bool complete = reader.getNumberOfRecordsLeft() >= reader.getNumberOfRecords();
            m_parts.push_back({name, reader.getPlane(), reader.getPlaneIndex(), reader.getNumberOfRecords(), complete});
            const PartialFile& first = m_parts.front();
            if (first.plane != reader.getPlane() || first.planeIndex != reader.getPlaneIndex()) {
                return incompatible(name);
            }
        }
        return true;
    }

    // More records than one file can have are most likely those that a damaged part claims.
    bool countRecords() {
        std::int64_t total = 0;
        for (const PartialFile& part : m_parts) total += part.numRecords;
        const bool fits = total <= std::numeric_limits<int>::max();
        const auto damaged = std::find_if(m_parts.begin(), m_parts.end(), [](auto& part) { return !part.complete; });
        if (!fits && damaged != m_parts.end()) return corrupt(damaged->name);
        if (!fits || m_parts.empty()) return creationFailed();
        m_numRecords = static_cast<int>(total);
        return true;
    }

    bool write() {
        FileReplacement file(toSystemPath(resolveLongPath(m_output, true)));
        SarResultWriter writer;
        const PartialFile& first = m_parts.front();
        if (!writer.beginResultWriting(toQtPath(file.path()), first.plane, first.planeIndex, m_numRecords)) {
            return creationFailed();
        }
        const auto copy = [&](const PartialFile& part) { return copyRecords(part, writer); };
        if (!std::all_of(m_parts.begin(), m_parts.end(), copy)) return false;
        if (!writer.endResultWriting()) return writingFailed();
        return file.takePlace() || creationFailed();
    }

    bool copyRecords(const PartialFile& part, SarResultWriter& writer) {
        SarResultReader reader;
        if (!reader.beginResultReading(part.name)) return openingFailed(part.name);
        SarResult::Record record;
        for (int i = 0; i < part.numRecords; ++i) {
            if (!reader.readRecord(record)) return corrupt(part.name);
            if (!writer.writeRecord(record)) return writingFailed();
        }
        return true;
    }

    bool openingFailed(const QString& name) {
        m_error = QStringLiteral("Failed to open temporary SAR output file '%1' for combining into '%2'.")
                      .arg(name, m_output);
        return unavailable();
    }

    bool incompatible(const QString& name) {
        m_error = QStringLiteral("Incompatible plane data found when combining output file '%1' into '%2'.")
                      .arg(name, m_output);
        return unavailable();
    }

    bool creationFailed() {
        m_error = QStringLiteral("Failed to create SAR output file '%1'.").arg(m_output);
        return unavailable();
    }

    bool corrupt(const QString& name) {
        m_error =
            QStringLiteral("Partial SAR data file '%1' is corrupt or missing data needed for SAR output file '%2'.")
                .arg(name, m_output);
        return incomplete();
    }

    bool writingFailed() {
        m_error = QStringLiteral("Failed to write data to SAR output file '%1'.").arg(m_output);
        return incomplete();
    }

    bool unavailable() {
        m_warning = QStringLiteral("SAR data will be unavailable on disk.");
        return false;
    }

    bool incomplete() {
        m_warning = QStringLiteral("SAR data will be incomplete on disk.");
        return false;
    }

    const QString& m_output;
    QString& m_error;
    QString& m_warning;
    std::vector<PartialFile> m_parts;
    int m_numRecords = 0;
};

}  // namespace

bool SarResult::combineFiles(const QStringList& partialFileNames, const QString& outputFileName, QString& error,
                             QString& warning) {
    return Combination(outputFileName, error, warning).run(partialFileNames);
}

}  // namespace quarn
