#include "tool/ToolFixture.h"

namespace quarn::test {
namespace {

using testing::HasSubstr;

TEST_F(ToolTest, FormatPrintsTheReferenceInTheDocuments) {
    QFile reference(QUARN_DOCS_FOLDER "/format.md");
    ASSERT_TRUE(reference.open(QIODevice::ReadOnly));
    EXPECT_EQ(run({"format"}).out, reference.readAll().toStdString()) << "write it anew with quarn format";
}

TEST_F(ToolTest, FormatPrintsOneBlock) {
    const char* pins =
        "\n### Pin\n\nPath: `FDTDProject/RunParameters/ComponentsPorts/FeedData/ImpedanceLine/PinGroup/Pin`\n\n"
        "| key | value | unit | default | written |\n|---|---|---|---|---|\n"
        "| `Name` | text | | `<unnamed pin>` | always |\n"
        "| `X` | number | m | `0` | always |\n| `Y` | number | m | `0` | always |\n| `Z` | number | m | `0` | always "
        "|\n"
        "| `Weight` | number | | `0` | always |\n";
    expect("format Pin", 0, pins);
    expect("format FDTDProject/Units/Display", 0, HasSubstr("| `Conversion` | number | m | `1` | always |\n"));
    expect("format pin", 2, "", "quarn: format: unknown block 'pin'; 'quarn format' prints all blocks\n");
}

}  // namespace
}  // namespace quarn::test
