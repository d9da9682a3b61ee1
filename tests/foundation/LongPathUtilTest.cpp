#include "quarn/LongPathUtil.h"

#include <gtest/gtest.h>

#include <QDir>
#include <tuple>

#include "foundation/LongPathText.h"
#include "foundation/PathSettings.h"

namespace quarn::test {
namespace {

TEST(LongPathText, HasItsNativeForm) {
    const std::tuple<const char*, const char*, bool, const char*> rows[] = {
        {"PrefixAndBackslashes", "C:/runs/a.bin", true, R"(\\?\C:\runs\a.bin)"},
        {"NoPrefixUnlessAskedFor", "C:/runs/a.bin", false, R"(C:\runs\a.bin)"},
        {"NoSecondPrefixOnBackslashes", R"(\\?\C:\a.bin)", true, R"(\\?\C:\a.bin)"},
        {"NoSecondPrefixOnSlashes", "//?/C:/a.bin", true, R"(\\?\C:\a.bin)"},
        {"PrefixAloneIsAPath", "//?/", false, R"(\?\)"},
        {"PairsOfSlashesBecomeSingleInOnePass", "C://a///b////c", false, R"(C:\a\\b\\c)"},
    };
    for (const auto& [name, path, addPrefix, native] : rows) {
        EXPECT_EQ(toLongPathText(withoutLongPathPrefix(path), addPrefix).toStdString(), native) << name;
    }
}

TEST(ResolveLongPath, GivesTheSamePathInAllForms) {
    const std::string current = QDir::currentPath().toStdString();
    const std::tuple<const char*, bool, const char*, std::string, std::string> rows[] = {
        {"UnchangedWithoutSupport", false, "/runs", "a//../b", "a//../b"},
        {"RelativeToWorkingDirectory", true, "/runs/1", "../b//c", "/runs/b/c"},
        {"RelativeToCurrentDirectory", true, "", "b/c", current + "/b/c"},
        {"AbsoluteStays", true, "/runs", "/b/../c", "/b/../c"},
        {"PrefixIsDropped", true, "/runs", "//?/b", "/runs/b"},
        {"PercentSignsAreNotPlaceholders", true, "/run%2", "%1", "/run%2/%1"},
        {"BeyondASCII", true, "/r\xc3\xa9sultats", "\xf0\x9f\x93\xa1", "/r\xc3\xa9sultats/\xf0\x9f\x93\xa1"},
    };
    for (const auto& [name, supportLongPaths, workingDir, path, resolved] : rows) {
        SCOPED_TRACE(name);
        const PathSettings settings(supportLongPaths, workingDir);
        EXPECT_EQ(resolveLongPath(path, true), resolved);
        EXPECT_EQ(resolveLongPath(QString::fromStdString(path), true).toStdString(), resolved);
        const auto utf16 = QString::fromStdString(resolved).toStdU16String();
        EXPECT_EQ(resolveLongPathAndConvertToNative(path), std::wstring(utf16.begin(), utf16.end()));
    }
}

}  // namespace
}  // namespace quarn::test
