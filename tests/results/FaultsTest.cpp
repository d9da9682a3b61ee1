// Writers of every format on a full disk and in folders that are missing, closed or do not allow a file to be replaced:
// each reports the failure, and those that use a FileReplacement leave an earlier file unchanged.

#include <gtest/gtest.h>

#include <sys/mount.h>

#include <QFileInfo>
#include <cerrno>
#include <climits>
#include <memory>
#include <system_error>

#include "Faults.h"
#include "TestSupport.h"
#include "foundation/PathSettings.h"
#include "project/GoldenProject.h"
#include "quarn/quarn.h"
#include "results/ResultFolder.h"

namespace quarn::test {
namespace {

constexpr int manyRecords = 100000;  // more than any buffer holds

bool writesProject(const QString& path) {
    OwnedProject project;
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

// Created before any fault is active, and readable by everybody.
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
    {"Project", writesProject},
    {"Geometry", writesGeometry},
    {"SarPlane", writesSarPlane},
    {"Records", writesRecords},
    {"NearZonePoint", writesNearZonePoint},
    {"MultiPointSet", writesMultiPointSet},
};

// Writers that use a FileReplacement.
const Writer replacingWriters[] = {
    {"Vias", writesVias},
    {"SarCombination", combinesSarPlanes},
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

    QString filesIn(const char* folder) const {
        return QDir(m_folder.path(folder)).entryList(QDir::Files | QDir::System).join(' ');
    }

    ResultFolder m_folder;
};

class ReplacingWriter : public FailingWriter {};

TEST_P(FailingWriter, WritesWithoutAFault) { EXPECT_TRUE(writes("out")); }

TEST_P(FailingWriter, ReportsAMissingFolder) { EXPECT_FALSE(writes("no/such/folder/out")); }

TEST_P(FailingWriter, ReportsAFullDisk) {
    EXPECT_FALSE(writesWith<FullDisk>("out"));
    for (const char* file : {"device", "device_info.bin"}) QFile::link("/dev/full", m_folder.path(file));
    EXPECT_FALSE(writes("device"));
}

TEST_P(FailingWriter, ReportsAClosedFolder) {
    putEarlier("closed", 0555);
    EXPECT_FALSE(writesWith<WithoutPrivileges>("closed/new"));
    setPermissions("closed", 0755);
}

TEST_P(ReplacingWriter, KeepsAnEarlierFileWithoutSpaceOrPermission) {
    putEarlier("open", 0777);
    EXPECT_FALSE(writesWith<FullDisk>("open/out"));
    setPermissions("open/out", 0640);
    EXPECT_FALSE(writesWith<WithoutPrivileges>("open/out"));
    EXPECT_EQ(m_folder.bytes("open/out"), "earlier");
    EXPECT_EQ(filesIn("open"), "out");
    QFile::link(m_folder.path("elsewhere"), m_folder.path("open/out.new0"));
    m_folder.put("open/out.new1", "somebody's");
    EXPECT_TRUE(writes("open/out"));
    EXPECT_FALSE(m_folder.has("elsewhere")) << "a symbolic link at the temporary name must not be followed";
    EXPECT_EQ(m_folder.bytes("open/out.new1"), "somebody's");
    EXPECT_EQ(QFile::permissions(m_folder.path("open/out")) & 0xFFF, 0x640);
}

TEST_P(ReplacingWriter, WritesIntoAFileThatCannotBeReplaced) {
    putEarlier("linked", 0755);
    putEarlier("closed", 0555);
    putEarlier("everybody", 01777);  // only its owner can rename over a file here
    putEarlier("mounted", 0755);
    const QByteArray mountPoint = m_folder.path("mounted/out").toLocal8Bit();
    const QByteArray origin = m_folder.put("mounted/origin", QByteArray(999, 'x')).toLocal8Bit();
    const bool isMounted = mount(origin, mountPoint, "", MS_BIND, "") == 0;  // where that is permitted
    ASSERT_TRUE(m_folder.linkHard("linked/out", "linked/2") && writes("plain"));
    EXPECT_TRUE(writes("linked/out") && writes("mounted/out"));
    EXPECT_TRUE(writesWith<WithoutPrivileges>("closed/out") && writesWith<WithoutPrivileges>("everybody/out"));
    EXPECT_TRUE(!isMounted || umount(mountPoint) == 0);
    for (const char* file : {"linked/2", "closed/out", "everybody/out", isMounted ? "mounted/origin" : "mounted/out"}) {
        EXPECT_EQ(m_folder.bytes(file), m_folder.bytes("plain")) << file;
        EXPECT_EQ(QFileInfo(m_folder.path(file)).ownerId(), getuid()) << file;
    }
    EXPECT_EQ(filesIn("linked") + filesIn("closed") + filesIn("everybody") + filesIn("mounted"),
              "2 outoutoutorigin out");
}

TEST_P(ReplacingWriter, AcceptsTheLongestNamesAndFollowsLinks) {
    const QByteArray longest(NAME_MAX, 'n');
    const QByteArray longPath = longest.left(259 - m_folder.path("x").size());
    ASSERT_TRUE(QFile::link("loop", m_folder.path("loop")) && QFile::link(longPath + 'n', m_folder.path("link")));
    EXPECT_TRUE(writes("plain") && writes(longPath) && writes("link"));
    EXPECT_FALSE(writes("loop"));
    EXPECT_TRUE((PathSettings(true, ""), writes(longest)));
    for (const QByteArray& name : {longPath, longPath + 'n', longest}) {
        EXPECT_EQ(m_folder.bytes(name), m_folder.bytes("plain"));
    }
    EXPECT_EQ(m_folder.names().size(), 5);
}

INSTANTIATE_TEST_SUITE_P(, FailingWriter, testing::ValuesIn(writers), rowName<Writer>);
INSTANTIATE_TEST_SUITE_P(Replacing, FailingWriter, testing::ValuesIn(replacingWriters), rowName<Writer>);
INSTANTIATE_TEST_SUITE_P(, ReplacingWriter, testing::ValuesIn(replacingWriters), rowName<Writer>);

TEST(MultiPointSetWriter, ReportsAVanishedFolderAtTheNextFile) {
    const ResultFolder folder;
    MultiPointResultWriter writer(true, false, false, false, false, false, false, false, false, false, false);
    ASSERT_TRUE(writer.beginResultWriting(folder.path("set"), GridIndexBoxes(std::vector<ivec3>{{1, 2, 3}})));
    ASSERT_TRUE(QDir(folder.path("")).removeRecursively());
    writer.beginTimestep(0);
    EXPECT_FALSE(writer.beginTransientScatteredE());
}

TEST(MultiPointSetWriter, ReportsAFullDisk) {
    const ResultFolder folder;
    MultiPointResultWriter writer(false, true, false, false, false, false, false, false, true, false, false);
    ASSERT_TRUE(writer.beginResultWriting(folder.path("set"), GridIndexBoxes(std::vector<ivec3>{{1, 2, 3}})));
    std::vector<bool> done;
    {
        const FullDisk disk;  // large enough for two times and two frequencies
        done = {writer.beginTimestep(1), writer.beginTimestep(2), writer.beginTransientTotalE()};
        for (int i = 0; i < 3; ++i) writer.writeTransient(1, 2, 3);
        done.push_back(writer.endTransient());
        done.insert(done.end(), {writer.beginTimestep(3), writer.beginFrequency(1), writer.beginFrequency(2)});
        done.push_back(writer.beginFrequency(3));
        writer.beginTransientTotalE();
        for (int i = 0; i < 3; ++i) writer.writeTransient(1, 2, 3);
        done.insert(done.end(), {writer.endTimestep(), writer.beginTransientTotalE(), writer.beginTransientTotalE()});
        for (int i = 0; i < 3; ++i) writer.writeTransient(1, 2, 3);
        writer.endTimestep();
    }
    EXPECT_TRUE(writer.beginResultWriting(folder.path("next"), GridIndexBoxes(std::vector<ivec3>{{1, 2, 3}})))
        << "data lost from the previous set must not fail this one";
    EXPECT_TRUE(writer.beginTimestep(1) && writer.beginTransientTotalE()) << "or its first group";
    SarResultWriter plane;
    ASSERT_TRUE(plane.beginResultWriting(folder.path("lost"), SARPlane::XY, 0, 1));
    EXPECT_TRUE((FullDisk(), plane.beginResultWriting(folder.path("plane"), SARPlane::XY, 0, 1))) << "or a plane";
    EXPECT_EQ(done, (std::vector<bool>{true, true, true, false, false, true, true, false, true, false, true}));
}

// A file with two hard links is not replaced: the content is copied into it.
TEST(FileReplacement, CopiesOnlyWhatFitsOnTheDisk) {
    const ResultFolder folder;
    const QString target = folder.put("out", "earlier");
    ASSERT_TRUE(folder.linkHard("out", "link") && QFile::setPermissions(target, QFile::Permissions(0x600)));
    for (const QByteArray& content : {QByteArray(200000, 'n'), QByteArray("new")}) {
        FileReplacement replacement(target);
        folder.put("out.new0", content);
        EXPECT_EQ(QFile::permissions(replacement.path()) & 0xFF, 0) << "the permissions of the earlier file";
        const auto takePlace = [&](rlim_t room) { return FullDisk(room), replacement.takePlace(); };
        EXPECT_EQ(takePlace(100000), content == "new");
        EXPECT_EQ(folder.bytes("link"), content == "new" ? content : "earlier");
        EXPECT_EQ(replacement.errorString(),
                  QString::fromStdString(content == "new" ? "" : std::generic_category().message(EFBIG)));
        EXPECT_TRUE(replacement.takePlace() && folder.bytes("link") == content);
    }
}

}  // namespace
}  // namespace quarn::test
