#include "quarn/MultiPointResult.h"

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

constexpr std::array<const char*, 3> componentNames{"x", "y", "z"};
constexpr std::array<const char*, 6> partNames{"xr", "yr", "zr", "xi", "yi", "zi"};

constexpr std::uint32_t unusedBits = 0x001FFFFF;

// A file name that begins with `start` and goes on like "Exr_total_freq3.bin".
QString componentFile(const QString& start, const FieldGroupInfo& info, const char* component, const char* series,
                      int index) {
    return start + QLatin1Char(info.field) + QLatin1String(component) + QLatin1Char('_') + QLatin1String(info.kind) +
           QLatin1String(series) + QString::number(index) + QLatin1String(".bin");
}

}  // namespace

MultiPointResult::MultiPointResult(bool scatteredE, bool totalE, bool scatteredH, bool totalH, bool scatteredB,
                                   bool totalB, bool j, bool steadyTotalE, bool steadyTotalH, bool steadyTotalB,
                                   bool steadyJ) {
    const bool transient[] = {scatteredE, totalE, scatteredH, totalH, scatteredB, totalB, j};
    const bool steady[] = {steadyTotalE, steadyTotalH, steadyTotalB, steadyJ};
    for (const TransientGroup group : transientGroups) m_groups |= transient[group] ? maskOf(group) : 0;
    for (const SteadyGroup group : steadyGroups) m_groups |= steady[group] ? maskOf(group) : 0;
}

QString MultiPointResult::getInfoFileName() const { return m_baseFileName + QLatin1String("_info.bin"); }
QString MultiPointResult::getGeometryFileName() const { return m_baseFileName + QLatin1String("_geom.bin"); }
QString MultiPointResult::getTimestepsFileName() const { return m_baseFileName + QLatin1String("_timesteps.bin"); }
QString MultiPointResult::getFrequenciesFileName() const { return m_baseFileName + QLatin1String("_frequencies.bin"); }

QString MultiPointResult::getComponentFileName(TransientGroup group, Component component, int timestep) const {
    return componentFile(m_baseFileName + QLatin1String("_transient_"),
                         infoOf(fieldsOf(group)),
                         componentNames[static_cast<std::size_t>(component)],
                         "ts",
                         timestep);
}

QString MultiPointResult::getComponentFileName(SteadyGroup group, Part part, int frequency) const {
    return componentFile(m_baseFileName + QLatin1String("_steady_"),
                         infoOf(fieldsOf(group)),
                         partNames[static_cast<std::size_t>(part)],
                         "freq",
                         frequency);
}

bool MultiPointResult::readInfo() {
    DataFileReader reader;
    if (!reader.open(getInfoFileName()) || !records::readMagic(reader, magic)) return false;
    Info info{m_serializationVersion, m_groups, m_numberOfPoints};
    const bool complete = records::readFields(reader, Info::fields(info));
    m_serializationVersion = info.version;
    if (!supportsSerializationVersion(info.version)) return false;
    m_groups = info.groups & ~unusedBits;
    if (!complete || (info.groups & unusedBits) != 0) return false;
    m_numberOfPoints = info.numPoints;
    return true;
}

bool MultiPointResult::writeInfo() const {
    DataFileWriter writer;
    const Info info{m_serializationVersion, m_groups, m_numberOfPoints};
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
