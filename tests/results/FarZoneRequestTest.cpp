#include "quarn/FarZoneRequest.h"

#include <gmock/gmock.h>

#include "TestSupport.h"
#include "quarn/DelimManager.h"
#include "quarn/FarZoneRotation.h"
#include "quarn/PhysicalConstants.h"

namespace quarn::test {
namespace {

using testing::ElementsAre;

constexpr auto pi = static_cast<float>(constants::pi);

TEST(FarZoneRequest, DerivesNamesByCuttingThreeCharacters) {
    const auto names = [](const char* name) {
        const FarZoneRequest request({}, name);
        return std::pair(request.getUANOutputFileName(), request.getCircularPolarizedUANOutputFileName());
    };
    EXPECT_EQ(names(""), std::pair(QString(), QString()));
    EXPECT_EQ(names(".ff"), std::pair(QString(".ff"), QString(".ff")));
    EXPECT_EQ(names("a.ff"), std::pair(QString("a.uan"), QString("a.cpuan")));
    EXPECT_EQ(names("b.far"), std::pair(QString("b..uan"), QString("b..cpuan")));
    EXPECT_EQ(names("four"), std::pair(QString("f.uan"), QString("f.cpuan")));
}

TEST(FarZoneRequest, WritesThetaBeforePhiAndGivesThemByIndex) {
    const FarZoneRequest request({{0.5F, 0.1F}, {-1e-5F, 2}}, QStringLiteral("far field.fz"));
    QString text;
    QTextStream out(&text, QIODevice::WriteOnly);
    out.setRealNumberPrecision(17);
    DelimManager delim(out, QString());
    EXPECT_TRUE(request.StreamOut(delim));
    out.flush();
    EXPECT_EQ(text, "OutputFileName far field.fz\nAngle 0.5 0.10000000149011612\nAngle -9.9999997473787516e-06 2\n");
    EXPECT_EQ(request.getAngle(1).phi, 2.0F);
    EXPECT_EQ(request.getAngle(2), FarZoneRequest::Angle());
}

struct Reading {
    const char* name;
    const char* lines;
    std::vector<FarZoneRequest::Angle> angles;
    const char* file;
};

void PrintTo(const Reading& row, std::ostream* out) { *out << row.name; }

class FarZoneRequestReading : public testing::TestWithParam<Reading> {};

TEST_P(FarZoneRequestReading, GivesTheAnglesAndTheFileName) {
    onBothStreams(expanded(QStringLiteral("Transient{%1}").arg(GetParam().lines)), [](QTextStream& in) {
        DelimManager delim(in, QString());
        QString name, value, description;
        ASSERT_TRUE(delim.IsDelim(name, value, description));
        FarZoneRequest request({{1, 1}}, QStringLiteral("before"));
        EXPECT_TRUE(request.StreamIn(delim));
        EXPECT_EQ(request, FarZoneRequest(GetParam().angles, GetParam().file));
    });
}

const Reading readings[] = {
    {"NoLines", "", {}, ""},
    {"LinesInAnyOrder", "Angle 1 2;OutputFileName  a b.fz ;Angle 3e-1 -4;", {{1, 2}, {0.3F, -4}}, "a b.fz"},
    {"UnknownWordsOneByOne", "Colour Angle 1 2;Angle 5 6 7;angle 8 9;", {{1, 2}, {5, 6}}, ""},
    {"InnerBlocksAsWords", "Angle 1 2;Angle{OutputFileName x;}Angle 3 4;", {{1, 2}, {3, 4}}, "x"},
    {"EndsAtAnUnreadableAngle", "Angle 1 2;Angle 3 x;Angle 5 6;", {{1, 2}, {3, 0}}, ""},
};
INSTANTIATE_TEST_SUITE_P(, FarZoneRequestReading, testing::ValuesIn(readings), rowName<Reading>);

TEST(FarZoneRotation, TurnsTheAxesAndNotTheVectors) {
    FarZoneRotation rotation;
    rotation.set(0, 0, 5, pi / 2);
    EXPECT_FALSE(rotation.isIdentity);
    const auto row = [](double x, double y, double z) {
        return ElementsAre(testing::DoubleNear(x, 1e-7), testing::DoubleNear(y, 1e-7), testing::DoubleNear(z, 1e-7));
    };
    EXPECT_THAT(rotation.matrix, ElementsAre(row(0, 1, 0), row(-1, 0, 0), row(0, 0, 1)));
    rotation.set(Vector3D(1, 1, 1), 2 * pi / 3);
    EXPECT_THAT(rotation.matrix, ElementsAre(row(0, 1, 0), row(0, 0, 1), row(1, 0, 0)));
}

TEST(FarZoneRotation, IsTheIdentityWithoutAnAxisAndForFullTurns) {
    for (const auto& [x, angle] : {std::pair(0.0, 1.0F), {1.0, 0.0F}, {1.0, 6.2831855F}, {1.0, -12.566371F}}) {
        FarZoneRotation rotation;
        rotation.set(1, 0, 0, 1);
        rotation.set(x, 0, 0, angle);
        EXPECT_EQ(rotation, FarZoneRotation()) << x << ' ' << angle;
    }
}

}  // namespace
}  // namespace quarn::test
