// Writers of every format on a disk that is full and in folders that are not there, closed, or do not let a file be
// replaced: each says that it failed, and those that choose how to write leave an earlier file as it was.

#include <gtest/gtest.h>

#include <QFileInfo>
#include <memory>

#include "Faults.h"
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

// Made before anything stands in the way, where everybody can read it.
const QString& sarPart() {
    static const ResultFolder folder;
    static const QString path = folder.path("part");
    if (!QFile::exists(path)) {
        EXPECT_EQ(chmod(folder.path("").toLocal8Bit(), 0755), 0);
        EXPECT_TRUE(writesSarPlane(path));
    }
    return path;
}

bool combinesSarPlanes(const QString& path) {
    QString error, warning;
    return SarResult::combineFiles({sarPart()}, path, error, warning);
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
    {"sar_plane", writesSarPlane},
    {"records", writesRecords},
    {"near_zone_point", writesNearZonePoint},
    {"multi_point_set", writesMultiPointSet},
};

// Those that choose how to write.
const Writer replacingWriters[] = {
    {"vias", writesVias},
    {"sar_combination", combinesSarPlanes},
};

class FailingWriter : public testing::TestWithParam<Writer> {
protected:
    void SetUp() override {
        sarPart();
        ASSERT_EQ(chmod(m_folder.path("").toLocal8Bit(), 0755), 0);
    }

    bool writes(const char* name) const { return GetParam().writes(m_folder.path(name)); }

    template <class Fault>
    bool writesWith(const char* name) const {
        const Fault fault;
        return writes(name);
    }

    void setPermissions(const char* name, mode_t permissions) const {
        EXPECT_EQ(chmod(m_folder.path(name).toLocal8Bit(), permissions), 0);
    }

    // Everybody may write to the file.
    void putEarlier(const char* folder, mode_t permissions) const {
        EXPECT_TRUE(QDir(m_folder.path("")).mkdir(folder));
        m_folder.put(QString(folder) + "/out", "earlier");
        setPermissions(folder, permissions);
        setPermissions(QByteArray(folder) + "/out", 0666);
    }

    ResultFolder m_folder;
};

class ReplacingWriter : public FailingWriter {};

TEST_P(FailingWriter, with_nothing_in_its_way_writes) { EXPECT_TRUE(writes("out")); }

TEST_P(FailingWriter, without_a_folder_reports_it) { EXPECT_FALSE(writes("no/such/folder/out")); }

TEST_P(FailingWriter, on_a_full_disk_reports_it) {
    EXPECT_FALSE(writesWith<FullDisk>("out"));
    for (const char* file : {"device", "device_info.bin"}) QFile::link("/dev/full", m_folder.path(file));
    EXPECT_FALSE(writes("device"));
}

TEST_P(FailingWriter, in_a_closed_folder_reports_it) {
    putEarlier("closed", 0555);
    EXPECT_FALSE(writesWith<WithoutPrivileges>("closed/new"));
    setPermissions("closed", 0755);
}

TEST_P(ReplacingWriter, keeps_an_earlier_file_that_it_has_no_room_or_no_permission_to_replace) {
    putEarlier("closed", 0555);
    EXPECT_FALSE(writesWith<WithoutPrivileges>("closed/out"));
    EXPECT_EQ(m_folder.bytes("closed/out"), "earlier");
    setPermissions("closed", 0755);
    EXPECT_FALSE(writesWith<FullDisk>("closed/out"));
    EXPECT_EQ(m_folder.bytes("closed/out"), "earlier");
    EXPECT_EQ(QDir(m_folder.path("closed")).entryList(QDir::Files), QStringList("out"));
}

TEST_P(ReplacingWriter, does_not_write_to_what_is_protected_nor_through_what_is_planted) {
    putEarlier("open", 0777);
    setPermissions("open/out", 0444);
    EXPECT_FALSE(writesWith<WithoutPrivileges>("open/out"));
    EXPECT_EQ(m_folder.bytes("open/out"), "earlier");
    QFile::link(m_folder.path("elsewhere"), m_folder.path("target.new0"));
    m_folder.put("target.new1", "somebody's");
    EXPECT_TRUE(writes("target.file"));
    EXPECT_FALSE(m_folder.has("elsewhere"));
    EXPECT_EQ(m_folder.bytes("target.new1"), "somebody's");
    EXPECT_FALSE(QFileInfo(m_folder.path("target.file")).isSymLink());
}

// In a folder of everybody's, what belongs to somebody else cannot be renamed over.
TEST_P(ReplacingWriter, that_cannot_rename_keeps_an_earlier_file) {
    if (geteuid() != 0) GTEST_SKIP() << "takes two users";
    putEarlier("everybody", 01777);
    EXPECT_TRUE(writesWith<WithoutPrivileges>("everybody/new"));
    EXPECT_FALSE(writesWith<WithoutPrivileges>("everybody/out"));
    EXPECT_EQ(m_folder.bytes("everybody/out"), "earlier");
    EXPECT_EQ(QDir(m_folder.path("everybody")).entryList(QDir::Files), (QStringList{"new", "out"}));
}

INSTANTIATE_TEST_SUITE_P(, FailingWriter, testing::ValuesIn(writers), rowName<Writer>);
INSTANTIATE_TEST_SUITE_P(Replacing, FailingWriter, testing::ValuesIn(replacingWriters), rowName<Writer>);
INSTANTIATE_TEST_SUITE_P(, ReplacingWriter, testing::ValuesIn(replacingWriters), rowName<Writer>);

TEST(WriterOfASet, whose_folder_vanishes_reports_it_at_the_next_file) {
    const ResultFolder folder;
    MultiPointResultWriter writer(true, false, false, false, false, false, false, false, false, false, false);
    ASSERT_TRUE(writer.beginResultWriting(folder.path("set"), GridIndexBoxes(std::vector<ivec3>{{1, 2, 3}})));
    ASSERT_TRUE(QDir(folder.path("")).removeRecursively());
    writer.beginTimestep(0);
    EXPECT_FALSE(writer.beginTransientScatteredE());
}

TEST(WriterOfASet, reports_it_when_the_disk_fills_up) {
    const ResultFolder folder;
    MultiPointResultWriter writer(false, true, false, false, false, false, false, false, true, false, false);
    ASSERT_TRUE(writer.beginResultWriting(folder.path("set"), GridIndexBoxes(std::vector<ivec3>{{1, 2, 3}})));
    std::vector<bool> done;
    {
        const FullDisk disk;  // with room for two times and two frequencies
        done = {writer.beginTimestep(1), writer.beginTimestep(2), writer.beginTransientTotalE()};
        for (int i = 0; i < 3; ++i) writer.writeTransient(1, 2, 3);
        done.push_back(writer.endTransient());
        done.insert(done.end(), {writer.beginTimestep(3), writer.beginFrequency(1), writer.beginFrequency(2)});
        done.push_back(writer.beginFrequency(3));
        writer.beginTransientTotalE();
        for (int i = 0; i < 3; ++i) writer.writeTransient(1, 2, 3);
        done.insert(done.end(), {writer.endTimestep(), writer.beginTransientTotalE(), writer.beginTransientTotalE()});
    }
    EXPECT_EQ(done, (std::vector<bool>{true, true, true, false, false, true, true, false, true, false, true}));
}

}  // namespace
}  // namespace quarn::test
