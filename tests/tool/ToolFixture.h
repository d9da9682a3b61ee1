#pragma once

#include <gmock/gmock.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "TestSupport.h"

namespace quarn::test {

// A project as it is saved, so that a check has no findings. The line "begin_<FDTDProject> " is line 2.
inline const QString clean =
    "Version 8\n" +
    expanded(
        "FDTDProject{ Units{ Display{ Name mm; Conversion 0.001; } Modeling{ Name m; Conversion 1; } }"
        "RunParameters{ OuterBoundaries{ LowerX ORBC_CPML; UpperX ORBC_CPML; LowerY ORBC_PEC; UpperY ORBC_PEC;"
        "LowerZ ORBC_PMC; UpperZ ORBC_PMC; NumberOfPMLLayers 8; }"
        "TerminationCriteria{ MaximumTimeSteps 1000; MaximumWallClockSeconds 0; }"
        "SourceType{ ScatteredFieldPlaneWave{ Amplitude 1; IncidentTheta 0; IncidentPhi 45; PhiPolarization;"
        "OutputFileName wave.inc; } } Waveform{ Sinusoid{ frequency 1000000000; } } } RequestResults{ } }");

struct ToolResult {
    int status;
    std::string out;
    std::string err;
};

/// A row of a table of tests; reports name it.
struct NamedRow {
    const char* name;
    friend std::ostream& operator<<(std::ostream& out, const NamedRow& row) { return out << row.name; }
};

class ToolTest : public testing::Test {
protected:
    /// Passes the input through a pipe.
    ToolResult run(const QStringList& arguments, const QByteArray& input = {}) {
        QProcess process;
        process.setWorkingDirectory(folder.path());
        process.start(QUARN_TOOL_PATH, arguments);
        process.write(input);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(),
                process.readAllStandardOutput().toStdString(),
                process.readAllStandardError().toStdString()};
    }

    /// Runs the tool with words that blanks separate, and checks its exit status and what it prints.
    void expect(const QString& words, int status, const testing::Matcher<std::string>& out,
                const testing::Matcher<std::string>& err = std::string(), const QByteArray& input = {}) {
        SCOPED_TRACE(words.toStdString());
        const ToolResult result = run(words.split(' '), input);
        EXPECT_EQ(result.status, status);
        EXPECT_THAT(result.out, out);
        EXPECT_THAT(result.err, err);
    }

    void write(const QString& name, const QByteArray& content) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QByteArray read(const QString& name) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return file.readAll();
    }

    QTemporaryDir folder;
};

using Replacements = QVector<QPair<QString, QString>>;

inline QByteArray changed(QString text, const Replacements& replacements) {
    for (const auto& [from, to] : replacements) {
        EXPECT_TRUE(text.contains(from)) << from.toStdString();
        text.replace(from, to);
    }
    return text.toUtf8();
}

inline QByteArray cleanWith(const Replacements& replacements) { return changed(clean, replacements); }

}  // namespace quarn::test
