// Reads any bytes as a file of meshless vias: they are refused with a message and an empty list, or give vias that are
// written as the same bytes.

#include <cstdint>
#include <sstream>
#include <stdexcept>

#include "Harness.h"
#include "MemoryBound.h"
#include "quarn/MeshlessVia.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fuzz::MemoryBound bound(size);
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    std::istringstream input(bytes);
    std::vector<quarn::MeshlessVia> vias(1);
    try {
        quarn::MeshlessVia::read_binary_stream(vias, input);
    } catch (const std::runtime_error&) {
        fuzz::require(vias.empty());
        return 0;
    }
    std::ostringstream output;
    quarn::MeshlessVia::write_binary_stream(vias, output);
    for (const auto& via : vias) via.str();
    fuzz::require(bytes.compare(0, output.str().size(), output.str()) == 0);
    return 0;
}
