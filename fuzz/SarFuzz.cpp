// Any bytes as two partial SAR files: reading and combining end. A combination holds the records of both; one that
// fails says so and changes no file.

#include "FuzzFiles.h"
#include "MemoryBound.h"
#include "quarn/SarResult.h"

namespace {

using fuzz::require;

constexpr int headerSize = 28;
constexpr int recordSize = 12;

// The records that a combination takes of a file.
QByteArray records(const char* name) {
    quarn::SarResultReader reader;
    require(reader.beginResultReading(fuzz::pathOf(name)));
    return fuzz::contents(name).mid(headerSize, recordSize * reader.getNumberOfRecords());
}

void readAll(const char* name) {
    quarn::SarResultReader reader;
    if (!reader.beginResultReading(fuzz::pathOf(name))) return;
    const auto left = reader.getNumberOfRecordsLeft();
    std::int64_t found = 0;
    for (quarn::SarResult::Record record; reader.readRecord(record);) ++found;
    require(found == left && reader.endResultReading());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fuzz::MemoryBound bound(size);
    fuzz::Pieces pieces(data, size);
    const QByteArray first = pieces.next();
    fuzz::put("a", first);
    fuzz::put("b", pieces.rest());
    fuzz::put("out", "earlier");
    readAll("a");
    readAll("b");
    QString error, warning;
    if (quarn::SarResult::combineFiles({fuzz::pathOf("a"), fuzz::pathOf("b")}, fuzz::pathOf("out"), error, warning)) {
        require(error.isEmpty() && fuzz::contents("out").mid(headerSize) == records("a") + records("b"));
    } else {
        require(!error.isEmpty() && !warning.isEmpty() && fuzz::contents("out") == "earlier");
    }
    require(fuzz::contents("a") == first && fuzz::contents("b") == pieces.rest() && fuzz::names().size() == 3);
    return 0;
}
