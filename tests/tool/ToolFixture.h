#pragma once

#include <gmock/gmock.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "TestSupport.h"

namespace quarn::test {

// As it is saved, so that checking it finds nothing. The line of "begin_<FDTDProject> " is 2.
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

class Tool : public testing::Test {
protected:
    /// The input comes through a pipe.
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

inline QByteArray cleanWith(const Replacements& replacements) {
    QString text = clean;
    for (const auto& [from, to] : replacements) {
        EXPECT_TRUE(text.contains(from)) << from.toStdString();
        text.replace(from, to);
    }
    return text.toUtf8();
}

}  // namespace quarn::test
