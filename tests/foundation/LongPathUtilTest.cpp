#include "quarn/LongPathUtil.h"

#include <gtest/gtest.h>

#include <QDir>

#include "foundation/LongPathText.h"
#include "foundation/PathSettings.h"

namespace quarn::test {
namespace {

struct TextRow {
    const char* name;
    const char* path;
    bool addPrefix;
    const char* native;
};

void PrintTo(const TextRow& row, std::ostream* out) { *out << row.path; }

class LongPathText : public testing::TestWithParam<TextRow> {};

TEST_P(LongPathText, HasItsNativeForm) {
    const TextRow& row = GetParam();
    EXPECT_EQ(toLongPathText(withoutLongPathPrefix(row.path), row.addPrefix).toStdString(), row.native);
}

const TextRow textRows[] = {
    {"PrefixAndBackslashes", "C:/runs/a.bin", true, R"(\\?\C:\runs\a.bin)"},
    {"NoPrefixUnlessAskedFor", "C:/runs/a.bin", false, R"(C:\runs\a.bin)"},
    {"NoSecondPrefixOnBackslashes", R"(\\?\C:\a.bin)", true, R"(\\?\C:\a.bin)"},
    {"NoSecondPrefixOnSlashes", "//?/C:/a.bin", true, R"(\\?\C:\a.bin)"},
    {"PrefixAloneIsAPath", "//?/", false, R"(\?\)"},
    {"PairsOfSlashesBecomeSingleInOnePass", "C://a///b////c", false, R"(C:\a\\b\\c)"},
};
INSTANTIATE_TEST_SUITE_P(, LongPathText, testing::ValuesIn(textRows), [](const auto& row) { return row.param.name; });

struct PathRow {
    const char* name;
    bool supportLongPaths;
    const char* workingDir;
    std::string path;
    std::string resolved;
};

void PrintTo(const PathRow& row, std::ostream* out) { *out << row.path; }

class ResolveLongPath : public testing::TestWithParam<PathRow> {};

TEST_P(ResolveLongPath, GivesTheSamePathInAllForms) {
    const PathRow& row = GetParam();
    const PathSettings settings(row.supportLongPaths, row.workingDir);
    EXPECT_EQ(resolveLongPath(row.path, true), row.resolved);
    EXPECT_EQ(resolveLongPath(QString::fromStdString(row.path), true).toStdString(), row.resolved);
    const auto utf16 = QString::fromStdString(row.resolved).toStdU16String();
    EXPECT_EQ(resolveLongPathAndConvertToNative(row.path), std::wstring(utf16.begin(), utf16.end()));
}

const std::string current = QDir::currentPath().toStdString();
const PathRow pathRows[] = {
    {"UnchangedWithoutSupport", false, "/runs", "a//../b", "a//../b"},
    {"RelativeToWorkingDirectory", true, "/runs/1", "../b//c", "/runs/b/c"},
    {"RelativeToCurrentDirectory", true, "", "b/c", current + "/b/c"},
    {"AbsoluteStays", true, "/runs", "/b/../c", "/b/../c"},
    {"PrefixIsDropped", true, "/runs", "//?/b", "/runs/b"},
    {"PercentSignsAreNotPlaceholders", true, "/run%2", "%1", "/run%2/%1"},
    {"BeyondAscii", true, "/r\xc3\xa9sultats", "\xf0\x9f\x93\xa1", "/r\xc3\xa9sultats/\xf0\x9f\x93\xa1"},
};
INSTANTIATE_TEST_SUITE_P(, ResolveLongPath, testing::ValuesIn(pathRows),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace quarn::test
