#include "quarn/MultiPointResult.h"

#include <cstddef>
#include <tuple>

#include "quarn/DataFileReader.h"
#include "quarn/DataFileWriter.h"
#include "results/RecordFields.h"

namespace quarn {

namespace {

constexpr std::string_view magic = "Rmpt";

// The numbers after the magic in the info file; MultiPointResult.h describes the layout.
struct Info {
    std::uint8_t version;
    std::uint32_t groups;
    std::int32_t numPoints;

    template <class Self>
    static auto fields(Self& r) {
        return std::tie(r.version, r.groups, r.numPoints);
    }
};

// The parts of the file names of each group and its bit in the info file, in the order of the groups.
struct Group {
    char field;
    const char* kind;
    int bit;
};

constexpr std::array<Group, 7> transientFiles{{
    {'E', "scattered_", 31},
    {'E', "total_", 30},
    {'H', "scattered_", 29},
    {'H', "total_", 28},
    {'B', "scattered_", 27},
    {'B', "total_", 26},
    {'J', "", 25},
}};

// The bits of B and J are not in the order of the groups.
constexpr std::array<Group, 4> steadyFiles{{
    {'E', "total_", 24},
    {'H', "total_", 23},
    {'B', "total_", 21},
    {'J', "", 22},
}};

constexpr std::array<const char*, 3> componentNames{"x", "y", "z"};
constexpr std::array<const char*, 6> partNames{"xr", "yr", "zr", "xi", "yi", "zi"};

constexpr std::uint32_t unusedBits = 0x001FFFFF;

constexpr std::uint32_t maskOf(const Group& group) { return std::uint32_t{1} << group.bit; }

template <std::size_t size>
std::uint32_t bitsOf(const std::array<Group, size>& groups, const std::array<bool, size>& collected) {
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < size; ++i) bits |= collected[i] ? maskOf(groups[i]) : 0;
    return bits;
}

template <std::size_t size>
void collectBits(std::uint32_t bits, const std::array<Group, size>& groups, std::array<bool, size>& collected) {
    for (std::size_t i = 0; i < size; ++i) collected[i] = (bits & maskOf(groups[i])) != 0;
}

// Returns for example "Exr_total_freq3.bin" behind `start`, the beginning of the file names of all groups.
QString componentFile(const QString& start, const Group& group, const char* component, const char* series, int index) {
    return start + QLatin1Char(group.field) + QLatin1String(component) + QLatin1Char('_') + QLatin1String(group.kind) +
           QLatin1String(series) + QString::number(index) + QLatin1String(".bin");
}

}  // namespace

MultiPointResult::MultiPointResult(bool collectTransientScatteredE, bool collectTransientTotalE,
                                   bool collectTransientScatteredH, bool collectTransientTotalH,
                                   bool collectTransientScatteredB, bool collectTransientTotalB, bool collectTransientJ,
                                   bool collectSteadyTotalE, bool collectSteadyTotalH, bool collectSteadyTotalB,
                                   bool collectSteadyJ)
    : m_transientGroups{collectTransientScatteredE,
                        collectTransientTotalE,
                        collectTransientScatteredH,
                        collectTransientTotalH,
                        collectTransientScatteredB,
                        collectTransientTotalB,
                        collectTransientJ},
      m_steadyGroups{collectSteadyTotalE, collectSteadyTotalH, collectSteadyTotalB, collectSteadyJ} {}

QString MultiPointResult::getInfoFileName() const { return m_baseFileName + QLatin1String("_info.bin"); }
QString MultiPointResult::getGeometryFileName() const { return m_baseFileName + QLatin1String("_geom.bin"); }
QString MultiPointResult::getTimestepsFileName() const { return m_baseFileName + QLatin1String("_timesteps.bin"); }
QString MultiPointResult::getFrequenciesFileName() const { return m_baseFileName + QLatin1String("_frequencies.bin"); }

QString MultiPointResult::getComponentFileName(TransientGroup group, Component component, int timestep) const {
    return componentFile(m_baseFileName + QLatin1String("_transient_"),
                         transientFiles[static_cast<std::size_t>(group)],
                         componentNames[static_cast<std::size_t>(component)],
                         "ts",
                         timestep);
}

QString MultiPointResult::getComponentFileName(SteadyGroup group, Part part, int frequency) const {
    return componentFile(m_baseFileName + QLatin1String("_steady_"),
                         steadyFiles[static_cast<std::size_t>(group)],
                         partNames[static_cast<std::size_t>(part)],
                         "freq",
                         frequency);
}

std::uint32_t MultiPointResult::toGroupBits() const {
    return bitsOf(transientFiles, m_transientGroups) | bitsOf(steadyFiles, m_steadyGroups);
}

void MultiPointResult::setGroupBits(std::uint32_t bits) {
    collectBits(bits, transientFiles, m_transientGroups);
    collectBits(bits, steadyFiles, m_steadyGroups);
}

bool MultiPointResult::readInfo() {
    DataFileReader reader;
    if (!reader.open(getInfoFileName()) || !records::readMagic(reader, magic)) return false;
    Info info{m_serializationVersion, toGroupBits(), m_numberOfPoints};
    const bool complete = records::readFields(reader, Info::fields(info));
    m_serializationVersion = info.version;
    if (!supportsSerializationVersion(info.version)) return false;
    setGroupBits(info.groups);
    if (!complete || (info.groups & unusedBits) != 0) return false;
    m_numberOfPoints = info.numPoints;
    return true;
}

bool MultiPointResult::writeInfo() const {
    DataFileWriter writer;
    const Info info{m_serializationVersion, toGroupBits(), m_numberOfPoints};
    return openForWriting(writer, getInfoFileName()) && records::writeMagic(writer, magic) &&
           records::writeFields(writer, Info::fields(info)) && writer.close();
}

bool MultiPointResult::openForReading(DataFileReader& reader, const QString& fileName) const {
    return supportsSerializationVersion(m_serializationVersion) && reader.open(fileName);
}

bool MultiPointResult::openForWriting(DataFileWriter& writer, const QString& fileName) const {
    return supportsSerializationVersion(m_serializationVersion) && writer.open(fileName, QStringLiteral("wb"));
}

}  // namespace quarn
