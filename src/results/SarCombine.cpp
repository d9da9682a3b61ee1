// Joins partial SAR files. All are inspected first, because the total number of records stands before the records; then
// they are copied one after the other, with only one of them open at a time.

#include <QFileInfo>
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <system_error>
#include <vector>

#include "quarn/FileReplacement.h"
#include "quarn/LongPathUtil.h"
#include "quarn/SarResult.h"
#include "results/Progress.h"

namespace quarn {

namespace {

constexpr std::int64_t maximumRecords = std::numeric_limits<std::int32_t>::max();
constexpr double nsPerRecord = 40.0;  // an estimate

struct PartialFile {
    QString name;
    SARPlane::Plane plane;
    int planeIndex;
    int numRecords;
    bool complete;
};

// One call of combineFiles, with references to its messages.
class Combination {
public:
    Combination(const QString& output, QString& error, QString& warning)
        : m_output(output), m_error(error), m_warning(warning) {}

    bool run(const QStringList& names, const ProgressReporter& reporter) {
        return inspect(names) && countRecords() && write(reporter);
    }

private:
    // Lists the partial files that exist and checks that all are of one plane. Pipes are refused: opening one would
    // wait for a writer.
    bool inspect(const QStringList& names) {
        for (const QString& name : names) {
            const QFileInfo file(resolveLongPath(name, true));
            if (!file.exists()) continue;
            SarResultReader reader;
            if (!file.isFile() || !reader.beginResultReading(name)) return openingFailed(name);
            const bool complete = reader.getNumberOfRecordsLeft() >= reader.getNumberOfRecords();
            m_parts.push_back({name, reader.getPlane(), reader.getPlaneIndex(), reader.getNumberOfRecords(), complete});
            const PartialFile& first = m_parts.front();
            if (first.plane != reader.getPlane() || first.planeIndex != reader.getPlaneIndex()) {
                return incompatible(name);
            }
        }
        return true;
    }

    // A total that no file can hold is most likely the claim of a damaged part. The records before the damage can still
    // be joined.
    bool countRecords() {
        for (const PartialFile& part : m_parts) m_total += part.numRecords;
        const bool isDamaged = std::any_of(m_parts.begin(), m_parts.end(), [](auto& part) { return !part.complete; });
        if (m_parts.empty() || (m_total > maximumRecords && !isDamaged)) return creationFailed();
        return true;
    }

    bool write(const ProgressReporter& reporter) {
        FileReplacement file(m_output);
        const bool isPart = outputIsPart();
        if (isPart && file.isTarget()) return creationFailed();
        SarResultWriter writer;
        const PartialFile& first = m_parts.front();
        const int numRecords = static_cast<int>(std::min(m_total, maximumRecords));
        if (!writer.beginResultWriting(file.path(), first.plane, first.planeIndex, numRecords)) return creationFailed();
        const bool isJoined = copyParts(writer, reporter);
        const bool isWritten = writer.endResultWriting() || (isJoined && writingFailed());
        if (isJoined && isWritten) return file.takePlace() || creationFailed();
        if (m_isIncomplete && !isPart && cutToWholeRecords(file.systemPath())) file.takePlace();
        return false;
    }

    bool outputIsPart() const {
        return std::any_of(m_parts.begin(), m_parts.end(), [&](auto& part) { return isSameFile(part.name, m_output); });
    }

    bool copyParts(SarResultWriter& writer, const ProgressReporter& reporter) {
        Progress progress(reporter, static_cast<std::size_t>(m_total));
        progress.expect(static_cast<double>(m_total) * nsPerRecord);
        const auto copy = [&](const PartialFile& part) { return copyRecords(part, writer, progress); };
        if (!progress.begin()) return stopped();
        return std::all_of(m_parts.begin(), m_parts.end(), copy) && (progress.end() || stopped());
    }

    bool copyRecords(const PartialFile& part, SarResultWriter& writer, Progress& progress) {
        SarResultReader reader;
        if (!reader.beginResultReading(part.name)) return openingFailed(part.name);
        SarResult::Record record;
        for (int i = 0; i < part.numRecords; ++i) {
            if (!reader.readRecord(record)) return corrupt(part.name);
            if (!writer.writeRecord(record)) return writingFailed();
            if (!progress.advance(nsPerRecord)) return stopped();
        }
        return true;
    }

    // A full disk may cut the file at any byte. Without the numbers before the records there is nothing to keep.
    static bool cutToWholeRecords(const std::filesystem::path& path) {
        std::error_code failure;
        const std::uintmax_t size = std::filesystem::file_size(path, failure);
        if (failure || size < SarResult::startSize) return false;
        const std::uintmax_t incomplete = (size - SarResult::startSize) % SarResult::recordSize;
        std::filesystem::resize_file(path, size - incomplete, failure);
        return !failure;
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

    bool stopped() {
        m_error = QStringLiteral("Combining into SAR output file '%1' was stopped.").arg(m_output);
        return unavailable();
    }

    bool unavailable() {
        m_warning = QStringLiteral("SAR data will be unavailable on disk.");
        return false;
    }

    bool incomplete() {
        m_isIncomplete = true;
        m_warning = QStringLiteral("SAR data will be incomplete on disk.");
        return false;
    }

    const QString& m_output;
    QString& m_error;
    QString& m_warning;
    std::vector<PartialFile> m_parts;
    std::int64_t m_total = 0;
    bool m_isIncomplete = false;
};

}  // namespace

bool SarResult::combineFiles(const QStringList& partialFileNames, const QString& outputFileName, QString& error,
                             QString& warning) {
    return combineFiles(partialFileNames, outputFileName, error, warning, nullptr);
}

bool SarResult::combineFiles(const QStringList& partialFileNames, const QString& outputFileName, QString& error,
                             QString& warning, const ProgressReporter& reporter) {
    return Combination(outputFileName, error, warning).run(partialFileNames, reporter);
}

}  // namespace quarn
