#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

#include "quarn/DataFileReader.h"
#include "quarn/DataFileWriter.h"
#include "quarn/Export.h"
#include "quarn/ProgressReporter.h"
#include "quarn/SARPlane.h"

namespace quarn {

/// The specific absorption rate in cells of one plane of the grid, in one file:
///
///     offset  type     meaning
///          0           FileHeader of type sarPlane, version 0
///         16  int32    plane: 0 YZ, 1 ZX, 2 XY
///         20  int32    index of the plane along its normal
///         24  int32    number of records
///         28           records
///
/// A record takes 12 bytes: two int32, the indices i and j in an XY plane, j and k in a YZ plane, i and k in a ZX
/// plane; and a float, the rate. Files that were appended to hold more records than their number says.
class QUARN_EXPORT SarResult {
public:
    struct Record {
        std::int32_t i = 0;  ///< the cell
        std::int32_t j = 0;
        std::int32_t k = 0;
        float value = 0.0F;  ///< W/kg

        friend bool operator==(const Record& a, const Record& b) {
            return a.i == b.i && a.j == b.j && a.k == b.k && a.value == b.value;
        }
        friend bool operator!=(const Record& a, const Record& b) { return !(a == b); }
    };

    /// Bytes of a file before its records, and of each record.
    static constexpr int startSize = 28;
    static constexpr int recordSize = 12;

    /// Joins files of one plane, as several processes of the engine wrote them, in the order of the list. Of each file
    /// as many records are taken as its number says, each time that the file is listed; files that do not exist are
    /// passed over. The output names the total of these numbers. The partial files stay, and the output may be one of
    /// them.
    ///
    /// On failure `error` says what failed and `warning` what the consequence is:
    /// - "SAR data will be incomplete on disk.": a partial file holds fewer records than it says, or the records cannot
    ///   be written. The output holds the whole records joined so far and names the total all the same (the largest
    ///   number that the file has room for, if the total is beyond it). Where the output is one of the partial files,
    ///   or not even the numbers before the records could be written, an earlier output stays as it was.
    /// - "SAR data will be unavailable on disk.": anything else, such as a partial file that is a pipe or a device, or
    ///   no partial file at all. An earlier output stays as it was.
    ///
    /// A reporter receives the number of records joined; when it stops the work, combining fails and an earlier output
    /// stays as it was. Output is written through a FileReplacement, so that "stays as it was" does not hold where that
    /// has to write the target itself. Memory does not depend on the size of the files.
    /// @{
    static bool combineFiles(const QStringList& partialFileNames, const QString& outputFileName, QString& error,
                             QString& warning);
    static bool combineFiles(const QStringList& partialFileNames, const QString& outputFileName, QString& error,
                             QString& warning, const ProgressReporter& reporter);
    /// @}
};

/// Writes the file of a plane: a new file, or records at the end of an existing one.
class QUARN_EXPORT SarResultWriter {
public:
    /// Makes a new file. `numRecords` is the number of records that will follow in all, now or by appending. False,
    /// with no file open, when the file cannot be written, the plane is not one of the three or the number is negative.
    /// An earlier file that is still open is closed; data lost there does not make this call fail.
    bool beginResultWriting(const QString& fileName, SARPlane::Plane plane, int planeIndex, int numRecords);

    /// Opens a file for more records of its plane, waiting for half a second if another process holds it. The file is
    /// not checked and its number of records is not changed. False when it cannot be opened or the plane is not one of
    /// the three.
    bool beginResultAppending(const QString& fileName, SARPlane::Plane plane, int planeIndex);

    /// The index along the plane's normal is not written. False also when no file is open.
    bool writeRecord(const SarResult::Record& record);

    /// False when not all records could be written and when no file is open.
    bool endResultWriting();

private:
    DataFileWriter m_writer;
    SARPlane::Plane m_plane = SARPlane::XY;
    std::int32_t m_planeIndex = 0;
};

/// Reads the file of a plane.
class QUARN_EXPORT SarResultReader {
public:
    /// False, with no file open, when the file cannot be opened, is of another type or version, or is malformed.
    bool beginResultReading(const QString& fileName);

    SARPlane::Plane getPlane() const { return m_plane; }
    int getPlaneIndex() const { return m_planeIndex; }

    /// As the file says, which may hold fewer records, or more if it was appended to.
    int getNumberOfRecords() const { return m_numRecords; }

    /// How many records the file still holds.
    std::int64_t getNumberOfRecordsLeft();

    /// False, with the record as it was, at the end of the file and when none is open. An incomplete record is read by
    /// a later call, once the file has grown.
    bool readRecord(SarResult::Record& record);

    /// False when no file is open.
    bool endResultReading();

private:
    DataFileReader m_reader;
    SARPlane::Plane m_plane = SARPlane::XY;
    std::int32_t m_planeIndex = 0;
    std::int32_t m_numRecords = 0;
};

}  // namespace quarn
