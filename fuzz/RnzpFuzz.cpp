// Reads any bytes as the fields at a point. Reading must end, and the records must be written as the same bytes.

#include <cstdio>
#include <memory>

#include "FuzzFiles.h"
#include "MemoryBound.h"
#include "quarn/NearZoneMultiFieldPointResult.h"

using fuzz::require;
using quarn::NearZoneMultiFieldPointResult;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fuzz::MemoryBound bound(size);
    using Stream = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;
    if (size == 0) return 0;
    QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    QByteArray written(bytes.size() + 100, '\0');
    const Stream input(fmemopen(bytes.data(), size, "rb"), std::fclose);
    const Stream output(fmemopen(written.data(), static_cast<std::size_t>(written.size()), "wb"), std::fclose);

    NearZoneMultiFieldPointResult result;
    NearZoneMultiFieldPointResult::Header header;
    if (!result.readAndGetHeader(input.get(), header)) return 0;
    require(header.getVersion() == 0 && result.setAndWriteHeader(header, output.get()));
    NearZoneMultiFieldPointResult::Record record;
    while (result.readRecord(input.get(), record)) require(result.writeRecord(record, output.get()));
    require(std::fflush(output.get()) == 0);
    const int length = static_cast<int>(std::ftell(output.get()));
    require(length >= 19 && length <= bytes.size() && written.left(length) == bytes.left(length));
    return 0;
}
