#include <QByteArray>
#include <sstream>

#include "EachMember.h"
#include "TestSupport.h"
#include "quarn/MeshlessVia.h"
#include "results/ResultFolder.h"

namespace quarn::test {
namespace {

using P = QualifiedPoint;

std::string bytesOf(const QByteArray& hex) { return QByteArray::fromHex(hex).toStdString(); }

const std::string check = bytesOf("40e2010000000000");
const std::string noVias = bytesOf("0000000000000000"), twoVias = bytesOf("0200000000000000");
const std::string coaxialBytes = bytesOf(
    "000000000000f03f 0000000000000040 000000000000e0bf 00000000 07000000"
    "9a9999999999b93f 0000000000000840 0000000000001040 03000000 02010000"
    "000000000000d03f 000000000000c03f 0000000000001440 0000000000000040 000000000000f03f");
const std::string unsetBytes = bytesOf(
    "0000000000000000 0000000000000000 0000000000000000 ffffffff ffffffff"
    "0000000000000000 0000000000000000 0000000000000000 ffffffff ffffffff"
    "000000000000f0bf 000000000000f0bf 0000000000000000 0000000000000000 0000000000000000");

MeshlessVia coaxialVia() {
    MeshlessVia via(P(1, 2, -0.5, P::OnVertex, 7), P(0.1, 3, 4, P::InElement, 258), 0.25, 0.125, 5, 2);
    via.setInnerDielectricPermittivity(1);
    return via;
}

class MeshlessViaFile : public testing::Test {
protected:
    std::string write(const std::string& bytes) {
        return m_folder.put("vias Ω", QByteArray::fromStdString(bytes)).toStdString();
    }
    ResultFolder m_folder;
};

TEST_F(MeshlessViaFile, HasItsBytes) {
    const std::vector<MeshlessVia> vias{coaxialVia(), MeshlessVia()};
    const std::string bytes = check + twoVias + coaxialBytes + unsetBytes, path = write(std::string(999, 'x'));
    MeshlessVia::write_binary(vias, path);
    EXPECT_EQ(m_folder.bytes("vias Ω").toHex().toStdString(), QByteArray::fromStdString(bytes).toHex().toStdString());
    EXPECT_EQ(MeshlessVia::getNbMeshlessVias(path), 2U);
    EXPECT_EQ(MeshlessVia::load_binary(path), vias);
    std::stringstream stream;
    MeshlessVia::write_binary_stream({}, stream);
    EXPECT_EQ(stream.str(), check + noVias);
    std::vector<MeshlessVia> list = vias;
    MeshlessVia::read_binary_stream(list, stream);
    EXPECT_TRUE(list.empty()) << "the list is replaced";
}

// Input like that of a pipe, which has no position.
struct Pipe : std::streambuf {
    explicit Pipe(std::string text) : m_text(std::move(text)) {
        setg(m_text.data(), m_text.data(), m_text.data() + m_text.size());
    }
    std::string m_text;
};

TEST(MeshlessViaStream, NeedsNoPositionAndLeavesTheRest) {
    const std::vector<MeshlessVia> vias(5000, coaxialVia());
    std::stringstream written;
    MeshlessVia::write_binary_stream(vias, written);
    Pipe pipe(written.str() + "rest");
    std::istream stream(&pipe);
    std::vector<MeshlessVia> list;
    MeshlessVia::read_binary_stream(list, stream);
    EXPECT_EQ(list, vias);
    std::string rest;
    stream >> rest;
    EXPECT_EQ(rest, "rest");
    std::string shortText = written.str();
    shortText.pop_back();
    std::istringstream shortStream(shortText);
    EXPECT_EQ(thrownBy([&] { MeshlessVia::read_binary_stream(list, shortStream); }), "Unable to read meshless vias");
    EXPECT_TRUE(list.empty());
}

TEST_F(MeshlessViaFile, FailuresHaveMessagesAndLeaveTheListEmpty) {
    const std::string order = "Unable to read meshless vias, byte order check failed";
    const std::string content = "Unable to read meshless vias";
    struct Row {
        std::string name, bytes, message;
        std::uint64_t count;  // the result of getNbMeshlessVias
    };
    const Row rows[] = {
        {"Empty", "", order, 0},
        {"ShortCheck", check.substr(1), order, 0},
        {"CheckOfAnotherByteOrder", bytesOf("000000000001e240") + noVias, order, 0},
        {"NoCount", check, content, 0},
        {"ShortCount", check + noVias.substr(1), content, 0},
        {"ThreeNamedButTwoPresent", check + bytesOf("0300000000000000") + coaxialBytes + unsetBytes, content, 3},
        {"OneByteShort", check + bytesOf("0100000000000000") + coaxialBytes.substr(1), content, 1},
        {"HostileCount", check + bytesOf("0000000000000020") + coaxialBytes, content, std::uint64_t(1) << 61},
        {"CountThatOverflowsToZero", check + bytesOf("0000000000000080"), content, std::uint64_t(1) << 63},
        {"LargestCount", check + bytesOf("ffffffffffffffff") + unsetBytes, content, ~std::uint64_t(0)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const std::string path = write(row.bytes);
        std::vector<MeshlessVia> list(1);
        EXPECT_EQ(thrownBy([&] { MeshlessVia::read_binary(list, path); }), row.message);
        EXPECT_TRUE(list.empty());
        for (const bool seekable : {true, false}) {
            list.resize(1);
            std::stringbuf buffer(row.bytes);
            Pipe pipe(row.bytes);
            std::istream stream(seekable ? static_cast<std::streambuf*>(&buffer) : &pipe);
            EXPECT_EQ(thrownBy([&] { MeshlessVia::read_binary_stream(list, stream); }), row.message);
            EXPECT_TRUE(list.empty());
        }
        std::uint64_t count = 0;
        EXPECT_EQ(thrownBy([&] { count = MeshlessVia::getNbMeshlessVias(path); }),
                  row.message == order ? "Unable to read <" + path + ">, byte order check failed" : "nothing");
        EXPECT_EQ(count, row.count);
    }
}

TEST_F(MeshlessViaFile, UnopenedFilesAreReported) {
    const std::string path = m_folder.path("no folder/vias").toStdString();
    std::vector<MeshlessVia> list(1);
    EXPECT_EQ(MeshlessVia::getNbMeshlessVias(path), 0U);
    EXPECT_EQ(thrownBy([&] { MeshlessVia::read_binary(list, path); }),
              "Unable to read <" + path + ">, byte order check failed");
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(thrownBy([&] { MeshlessVia::write_binary({}, path); }), "Unable to write <" + path + ">");
}

TEST(MeshlessViaModel, ChecksTheRadii) {
    const P a, b;
    const MeshlessVia solid(a, b, 0.5, 1, 2);
    EXPECT_EQ(solid.getInnerRadius(), 0);
    EXPECT_EQ(solid.getPermeability() - solid.getResistivity(), 1);
    EXPECT_EQ(thrownBy([&] { MeshlessVia(a, b, 0.1, 0.1, 0, 0); }),
              "invalid inner/outer radius for Meshless Via: Rinner=0.1, Router=0.1");
    EXPECT_EQ(thrownBy([&] { MeshlessVia(a, b, 1e-7, 1.0 / 3, 0, 0); }),
              "invalid inner/outer radius for Meshless Via: Rinner=0.333333, Router=1e-07");
}

TEST(MeshlessViaModel, EveryValueCountsForEquality) {
    using std::tuple;
    const auto points = changedOneByOne<P>(tuple(0.0, 0.0, 0.0, P::OnVertex, 0), tuple(1.0, 1.0, 1.0, P::OnEdge, 1));
    expectAllDifferent(points);
    auto vias = changedOneByOne<MeshlessVia>(tuple(points[0], points[0], 2.0, 0.0, 0.0, 0.0),
                                             tuple(points[1], points[1], 3.0, 1.0, 1.0, 1.0));
    vias.push_back(vias[0]);
    vias.back().setInnerDielectricPermittivity(1);
    expectAllDifferent(vias);
}

TEST(MeshlessViaModel, HasTextForms) {
    EXPECT_EQ(P().str(), "[(0, 0, 0)]");
    EXPECT_EQ(P(0.1, -2, 1234567, P::OnEdge, 5).str(), "[(0.1, -2, 1.23457e+06) on edge 5]");
    EXPECT_EQ(P(1, 2, 3, P::OnFace, -1).str(), "[(1, 2, 3) on face -1]");
    EXPECT_EQ(P(1, 2, 3, P::Type(4), 5).str(), "[(1, 2, 3)]");
    EXPECT_EQ(coaxialVia().str(),
              "MESHLESS VIA ([(1, 2, -0.5) on vertex 7] -> [(0.1, 3, 4) in element 258])radius=[0.125 , 0.25], "
              "resistivity=5, permeability=2, inner dielectric permittivity=1");
    EXPECT_EQ(MeshlessVia().str(),
              "MESHLESS VIA ([(0, 0, 0)] -> [(0, 0, 0)]), radius=-1, resistivity=0, permeability=0");
}

}  // namespace
}  // namespace quarn::test
