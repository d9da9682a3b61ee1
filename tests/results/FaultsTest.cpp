// Writers of every format on a disk that is full and in a folder that is not there: each says that it failed.

#include <gtest/gtest.h>

#include <memory>

#include "TestSupport.h"
#include "project/GoldenProject.h"
#include "quarn/quarn.h"
#include "results/ResultFolder.h"

namespace quarn::test {
namespace {

constexpr int manyRecords = 100000;  // more than any buffer holds

bool writesProject(const QString& path) {
    OwningProject project;
    describe(project);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return false;
    QTextStream stream(&file);
    return !project.saveToStream(stream);  // true when the stream is in error
}

bool writesGeometry(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return false;
    QTextStream stream(&file);
    return v6GeometryFile().saveToStream(Grid(), stream);
}

bool writesVias(const QString& path) {
    try {
        MeshlessVia::write_binary(std::vector<MeshlessVia>(1), path.toStdString());
        return true;
    } catch (const std::runtime_error&) {
        return false;
    }
}

bool writesSarPlane(const QString& path) {
    SarResultWriter writer;
    if (!writer.beginResultWriting(path, SARPlane::XY, 0, 1)) return false;
    const bool isWritten = writer.writeRecord({});
    return writer.endResultWriting() && isWritten;
}

bool writesRecords(const QString& path) {
    DataFileWriter writer;
    bool isWritten = writer.open(path, "wb");
    for (int i = 0; i < manyRecords && isWritten; ++i) isWritten = FarZoneSSFieldFile::writeRecord(writer, {});
    return writer.close() && isWritten;
}

bool writesNearZonePoint(const QString& path) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(openFile(path, "wb"), std::fclose);
    if (!stream) return false;
    NearZoneMultiFieldPointResult result;
    bool isWritten = result.setAndWriteHeader({0, 0, 0, true, true, true, true, true, true, true}, stream.get());
    for (int i = 0; i < manyRecords && isWritten; ++i) isWritten = result.writeRecord({}, stream.get());
    return isWritten;
}

bool writesMultiPointSet(const QString& path) {
    MultiPointResultWriter writer(false, true, false, false, false, false, false, false, false, false, false);
    return writer.beginResultWriting(path, GridIndexBoxes(std::vector<ivec3>{{1, 2, 3}}));
}

struct Writer {
    const char* name;
    bool (*writes)(const QString& path);
};

void PrintTo(const Writer& writer, std::ostream* out) { *out << writer.name; }

const Writer writers[] = {
    {"project", writesProject},
    {"geometry", writesGeometry},
    {"vias", writesVias},
    {"sar_plane", writesSarPlane},
    {"records", writesRecords},
    {"near_zone_point", writesNearZonePoint},
    {"multi_point_set", writesMultiPointSet},
};

class FailingWriter : public testing::TestWithParam<Writer> {};

TEST_P(FailingWriter, reports_it) {
    const ResultFolder folder;
    EXPECT_TRUE(GetParam().writes(folder.path("out"))) << "with nothing in its way";
    EXPECT_FALSE(GetParam().writes(folder.path("no/such/folder/out")));
    for (const char* file : {"full", "full_info.bin"}) QFile::link("/dev/full", folder.path(file));
    EXPECT_FALSE(GetParam().writes(folder.path("full")));
}

INSTANTIATE_TEST_SUITE_P(, FailingWriter, testing::ValuesIn(writers), rowName<Writer>);

}  // namespace
}  // namespace quarn::test
