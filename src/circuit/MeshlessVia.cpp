// A via has the same layout in memory and in a file:
//
//   offset  type     meaning
//        0  double   x, y, z of the first point
//       24  int32    type of the first point
//       28  int32    number of its vertex, edge, face or element
//       32           second point, likewise
//       64  double   outer radius
//       72  double   inner radius
//       80  double   resistivity
//       88  double   permeability
//       96  double   permittivity of the inner dielectric
//
// The file begins with two 64-bit unsigned integers: the check value and the number of vias.

#include "quarn/MeshlessVia.h"

#include <algorithm>
#include <fstream>
#include <locale>
#include <sstream>
#include <stdexcept>
#include <tuple>
#include <type_traits>

#include "quarn/FileReplacement.h"
#include "quarn/LongPathUtil.h"

namespace quarn {

static_assert(sizeof(QualifiedPoint) == 32);
static_assert(sizeof(MeshlessVia) == 104);
static_assert(std::is_trivially_copyable_v<MeshlessVia>);

namespace {

constexpr std::uint64_t viasPerRead = 4096;

bool readNumber(std::istream& stream, std::uint64_t& number) {
    return static_cast<bool>(stream.read(reinterpret_cast<char*>(&number), sizeof number));
}

void writeNumber(std::ostream& stream, std::uint64_t number) {
    stream.write(reinterpret_cast<const char*>(&number), sizeof number);
}

bool readVias(std::istream& stream, std::uint64_t count, std::vector<MeshlessVia>& vias) {
    while (vias.size() < count) {
        const std::size_t start = vias.size();
        const std::size_t more = std::min(count - start, viasPerRead);
        vias.resize(start + more);
        const auto bytes = static_cast<std::streamsize>(more * sizeof(MeshlessVia));
        if (!stream.read(reinterpret_cast<char*>(vias.data() + start), bytes)) return false;
    }
    return true;
}

// A text stream that is independent of the process locale.
std::ostringstream plainText() {
    std::ostringstream out;
    out.imbue(std::locale::classic());
    return out;
}

std::runtime_error byteOrderError(const std::string& path) {
    return std::runtime_error("Unable to read <" + path + ">, byte order check failed");
}

}  // namespace

bool operator==(const QualifiedPoint& a, const QualifiedPoint& b) {
    return std::tie(a.m_type, a.m_id, a.m_coord) == std::tie(b.m_type, b.m_id, b.m_coord);
}

std::string QualifiedPoint::str() const {
    static constexpr const char* places[] = {" on vertex ", " on edge ", " on face ", " in element "};
    std::ostringstream out = plainText();
    out << "[(" << m_coord[0] << ", " << m_coord[1] << ", " << m_coord[2] << ")";
    if (m_type >= OnVertex && m_type <= InElement) out << places[m_type] << m_id;
    out << "]";
    return out.str();
}

MeshlessVia::MeshlessVia(const QualifiedPoint& first, const QualifiedPoint& second, double radius, double resistivity,
                         double permeability)
    : m_first(first),
      m_second(second),
      m_outerRadius(radius),
      m_innerRadius(0.0),
      m_resistivity(resistivity),
      m_permeability(permeability) {}

MeshlessVia::MeshlessVia(const QualifiedPoint& first, const QualifiedPoint& second, double outerRadius,
                         double innerRadius, double resistivity, double permeability)
    : MeshlessVia(first, second, outerRadius, resistivity, permeability) {
    m_innerRadius = innerRadius;
    if (innerRadius >= outerRadius) {
        std::ostringstream message = plainText();
        message << "invalid inner/outer radius for Meshless Via: Rinner=" << innerRadius << ", Router=" << outerRadius;
        throw std::runtime_error(message.str());
    }
}

bool operator==(const MeshlessVia& a, const MeshlessVia& b) {
    const auto members = [](const MeshlessVia& via) {
        return std::tie(via.m_first,
                        via.m_second,
                        via.m_outerRadius,
                        via.m_innerRadius,
                        via.m_resistivity,
                        via.m_permeability,
                        via.m_innerDielectricPermittivity);
    };
    return members(a) == members(b);
}

std::string MeshlessVia::str() const {
    const bool coaxial = m_innerRadius > 0.0;
    std::ostringstream out = plainText();
    out << "MESHLESS VIA (" << m_first.str() << " -> " << m_second.str() << ")";
    if (coaxial) {
        out << "radius=[" << m_innerRadius << " , " << m_outerRadius << "]";
    } else {
        out << ", radius=" << m_outerRadius;
    }
    out << ", resistivity=" << m_resistivity << ", permeability=" << m_permeability;
    if (coaxial) out << ", inner dielectric permittivity=" << m_innerDielectricPermittivity;
    return out.str();
}

std::uint64_t MeshlessVia::getNbMeshlessVias(const std::string& path) {
    std::ifstream file(resolveLongPath(path, true), std::ios::binary);
    if (!file) return 0;
    std::uint64_t number = 0;
    if (!readNumber(file, number) || number != byte_order_check) throw byteOrderError(path);
    return readNumber(file, number) ? number : 0;
}

std::vector<MeshlessVia> MeshlessVia::load_binary(const std::string& path) {
    std::vector<MeshlessVia> vias;
    read_binary(vias, path);
    return vias;
}

void MeshlessVia::read_binary(std::vector<MeshlessVia>& vias, const std::string& path) {
    vias.clear();
    std::ifstream file(resolveLongPath(path, true), std::ios::binary);
    if (!file) throw byteOrderError(path);
    read_binary_stream(vias, file);
}

void MeshlessVia::read_binary_stream(std::vector<MeshlessVia>& vias, std::istream& stream) {
    vias.clear();
    std::uint64_t number = 0;
    if (!readNumber(stream, number) || number != byte_order_check) {
        throw std::runtime_error("Unable to read meshless vias, byte order check failed");
    }
    std::vector<MeshlessVia> found;
    if (!readNumber(stream, number) || !readVias(stream, number, found)) {
        throw std::runtime_error("Unable to read meshless vias");
    }
    vias = std::move(found);
}

void MeshlessVia::write_binary(const std::vector<MeshlessVia>& vias, const std::string& path) {
    FileReplacement replacement(std::filesystem::path(resolveLongPath(path, true)));
    std::ofstream file(replacement.systemPath(), std::ios::binary | std::ios::trunc);
    if (file) {
        write_binary_stream(vias, file);
        file.close();
    }
    if (!file || !replacement.takePlace()) throw std::runtime_error("Unable to write <" + path + ">");
}

void MeshlessVia::write_binary_stream(const std::vector<MeshlessVia>& vias, std::ostream& stream) {
    writeNumber(stream, byte_order_check);
    writeNumber(stream, vias.size());
    stream.write(reinterpret_cast<const char*>(vias.data()),
                 static_cast<std::streamsize>(vias.size() * sizeof(MeshlessVia)));
}

}  // namespace quarn
