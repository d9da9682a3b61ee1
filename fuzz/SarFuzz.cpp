// Reads and combines any bytes as two partial SAR files. A combination holds the records of both, up to the end of a
// truncated file, which is reported. Any other failure leaves the earlier output.

#include <algorithm>
#include <cstdint>

#include "FuzzFiles.h"
#include "MemoryBound.h"
#include "quarn/SarResult.h"

namespace {

using fuzz::require;

constexpr int headerSize = 28;
constexpr int recordSize = 12;

// The complete records of a file, up to the number in its header.
struct Announced {
    QByteArray records;
    bool isComplete;
};

Announced announced(const char* name) {
    quarn::SarResultReader reader;
    require(reader.beginResultReading(fuzz::pathOf(name)));
    const auto count = std::min<std::int64_t>(reader.getNumberOfRecords(), reader.getNumberOfRecordsLeft());
    return {fuzz::contents(name).mid(headerSize, recordSize * static_cast<int>(count)),
            count == reader.getNumberOfRecords()};
}

// The records that a combination takes: none behind the first truncated file.
Announced combined() {
    const Announced first = announced("a"), second = announced("b");
    if (!first.isComplete) return first;
    return {first.records + second.records, second.isComplete};
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
    const bool isWhole =
        quarn::SarResult::combineFiles({fuzz::pathOf("a"), fuzz::pathOf("b")}, fuzz::pathOf("out"), error, warning);
    require(isWhole ? error.isEmpty() : !error.isEmpty() && !warning.isEmpty());
    if (isWhole || warning.contains("incomplete on disk")) {
        const Announced expected = combined();
        require(isWhole == expected.isComplete && fuzz::contents("out").mid(headerSize) == expected.records);
    } else {
        require(fuzz::contents("out") == "earlier");
    }
    require(fuzz::contents("a") == first && fuzz::contents("b") == pieces.rest() && fuzz::names().size() == 3);
    return 0;
}
