#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <QTextCodec>
#include <clocale>
#include <stdexcept>

#include "TestSupport.h"
#include "project/GoldenProject.h"
#include "quarn/FormatReference.h"

namespace quarn::test {
namespace {

using A = AmbientConditions;

TEST(ProjectText, EverySectionIsWrittenInOrderAndReadBack) {
    OwnedProject project;
    describe(project);
    EXPECT_EQ(saved(project), golden);
    for (const QString& text : {golden, QString(golden).replace("\n", "\r\n"), golden.chopped(1)}) {
        expectLoads(text, golden, saved);
    }
}

// A project file with its three blocks in short form, and with boundaries unless the run parameters contain them.
const QString sides =
    "LowerX ORBC_CPML; UpperX ORBC_CPML; LowerY ORBC_CPML; UpperY ORBC_CPML; LowerZ ORBC_CPML; "
    "UpperZ ORBC_CPML; NumberOfPMLLayers 8; ";
const QString metres = "Name m; Conversion 1; ";

QString fileOf(const QString& run, const QString& requests, const QString& units, const char* project = "FDTDProject") {
    const QString boundaries = run.startsWith("OuterBoundaries{") ? QString() : "OuterBoundaries{ " + sides + "} ";
    return expanded("Version 8; " + QString(project) + "{ Units{ " + units + "} RunParameters{ " + boundaries + run +
                    "} RequestResults{ " + requests + "} }");
}

const QString tdAfs =
    "TdAfsTerminationCriteria{ StartFrequency 1000000000; StopFrequency 10000000000; NumberOfFrequencyPoints 1000; "
    "ENERGY; INTERPOLATION; NumberOfConsecutivePasses 3; } ";
const QString wave = "Amplitude 1; IncidentTheta 2; IncidentPhi 3; ThetaPolarization; OutputFileName my wave.out; ";
const QString scattered = "ScatteredFieldPlaneWave{ " + wave + "} ";
const QString cfl = "UseUsersCFL 0.5; ";
const QString frequency = "SteadyStateFrequencies{ FrequencyFolder 1 F; } ";
const QString frequencySaved = "DFTParameters{ DataSampling 1; } SteadyStateStorageMethodIsMemory; " + frequency;

QString without(const QString& part, QString text) { return text.remove(part); }

// clang-format off
const struct {
    const char* behaviour;
    QString run, runSaved;
    QString requests = "", requestsSaved = "";
    QString units = "", displaySaved = metres, modelingSaved = metres;
} sectionRows[] = {
    {"BoundariesDropUnknownLinesAndDefaultToCPML",
     "OuterBoundaries{ foo LowerX ORBC_PEC; bar{ LowerX ORBC_PEC; } NumberOfPMLLayers 8; } ", ""},
    {"BoundaryNamesAreExactAndPMLIsCPML",
     "OuterBoundaries{ UpperZ ORBC_PML; LowerX orbc_pec; UpperX ORBC_FOO; LowerY ORBC_MSYMMETRY; NumberOfPMLLayers 8; } ",
     "OuterBoundaries{ " + QString(sides).replace("LowerY ORBC_CPML", "LowerY ORBC_MSYMMETRY") + "} "},
    {"PeriodicParametersDropUnknownWordsAndNoWaveformIsKnownYet",
     "OuterBoundaries{ PeriodicParameters{ foo Phi 30; Frequency 7; UseWaveformFrequency; UseScanAngle; } "
     "NumberOfPMLLayers 8; } Waveform{ Sinusoid{ frequency 9; } } ",
     "OuterBoundaries{ " + sides + "PeriodicParameters{ UseScanAngle; Phi 30; Theta 0; Frequency 7; } } "
     "Waveform{ Sinusoid{ frequency 9; } } "},
    {"MissingNumberConsumesTheCloseLine",
     "OuterBoundaries{ NumberOfPMLLayers; } UseUsersCFL 0.5; ",
     "OuterBoundaries{ " + QString(sides).replace('8', '0') + "} UseUsersCFL 0.5; ", frequency, ""},
    {"AmbientConditionsDefault", "AmbientConditions{ } ",
     "AmbientConditions{ BackgroundMedium{ Temperature 298.14999389648438; } Top{ HeatTransferCoefficient 0; } "
     "Bottom{ HeatTransferCoefficient 0; } } "},
    {"AmbientConditionsDropUnknownContent",
     "AmbientConditions{ foo bar; Left{ HeatTransferCoefficient 1; } Bottom{ foo HeatTransferCoefficient 2; } "
     "Top{ HeatTransferCoefficient 3; } HeatTransferCoefficient 4; BackgroundMedium{ Temperature 5; } } ",
     "AmbientConditions{ BackgroundMedium{ Temperature 5; } Top{ HeatTransferCoefficient 3; } "
     "Bottom{ HeatTransferCoefficient 2; } } "},
    {"ConvergenceDefaultsToMediumDensityWithoutFlatLineDetection",
     "TerminationCriteria{ ConvergenceEnabled; Threshhold -30; SamplingInterval 1; WindowSize 2; } ",
     "TerminationCriteria{ MaximumTimeSteps 0; MaximumWallClockSeconds 0; ConvergenceEnabled; Threshhold -30; "
     "SamplingInterval 1; WindowSize 2; MinimumTimeSteps 0; MEDIUM_DENSITY; " + tdAfs + "} "},
    {"TerminationLinesInAnyOrder",
     "TerminationCriteria{ TdAfsTerminationCriteria{ FFT; foo SPARAMETERS; NumberOfConsecutivePasses 9; } foo{ } "
     "LOW_DENSITY; foo HIGH_DENSITY; WindowSize -2; ConvergenceEnabled; MinimumTimeSteps 4294967295; "
     "FlatLineDetectionEnabled; SamplingInterval 1; Threshhold -30; MaximumWallClockSeconds 60; } ",
     "TerminationCriteria{ MaximumTimeSteps 0; MaximumWallClockSeconds 60; ConvergenceEnabled; Threshhold -30; "
     "SamplingInterval 1; WindowSize -2; MinimumTimeSteps 4294967295; FlatLineDetectionEnabled; LOW_DENSITY; " +
     QString(tdAfs).replace("INTERPOLATION", "FFT").replace("Passes 3", "Passes 9") + "} "},
    {"MinimumIsNotWrittenWithoutConvergence", "TerminationCriteria{ MinimumTimeSteps 9; HIGH_DENSITY; } ",
     "TerminationCriteria{ MaximumTimeSteps 0; MaximumWallClockSeconds 0; } "},
    {"BadNumberEndsItsSectionWhoseCloseLineEndsTheRunParameters",
     "TerminationCriteria{ MaximumTimeSteps x; MaximumTimeSteps 5; } UseUsersCFL 0.5; ",
     "TerminationCriteria{ MaximumTimeSteps 0; MaximumWallClockSeconds 0; } ", frequency, frequencySaved},
    {"OldConvergenceWithMinimum",
     "Convergence{ foo{ } ConvergenceRequireMinimumNumberOfTimeSteps; ConvergenceMinimumNumberOfTimeSteps 500; } ",
     "TerminationCriteria{ MaximumTimeSteps 501; MaximumWallClockSeconds 0; } "},
    {"OldConvergenceNeedsFlagAndMinimum", "Convergence{ ConvergenceMinimumNumberOfTimeSteps 500; } "
     "Convergence{ ConvergenceRequireMinimumNumberOfTimeSteps; } ", ""},
    {"WaveLinesInAnyOrder",
     "SourceType{ foo AreaSourceFile  my area.txt ; ScatteredFieldPlaneWave{ OutputFileName  my wave.out ; "
     "ThetaPolarization; IncidentPhi 3; IncidentTheta 2; Amplitude 1; } } ",
     "SourceType{ " + scattered + "AreaSourceFile my area.txt; } "},
    {"TFSFWaveWritesActiveFacesOnly",
     "SourceType{ TotalFieldScatteredFieldPlaneWave{ ZLower; YLower; XLower; " + wave + "} } ",
     "SourceType{ TotalFieldScatteredFieldPlaneWave{ " + wave + "XLower; YLower; ZLower; } } "},
    {"GaussianBeam", "SourceType{ GaussianBeam{ Radius 7; ZFocus 6; YFocus 5; XFocus 4; " + wave + "} } ",
     "SourceType{ GaussianBeam{ " + wave + "XFocus 4; YFocus 5; ZFocus 6; Radius 7; } } "},
    {"BeamNeedsARadius", "SourceType{ GaussianBeam{ XFocus 4; YFocus 5; ZFocus 6; " + wave + "} } " + cfl, cfl},
    {"WaveNeedsAFileName", "SourceType{ " + without("my wave.out", scattered) + "} " + cfl, cfl},
    {"WaveNeedsNumbers", "SourceType{ " + QString(scattered).replace("Phi 3", "Phi nan") + "} " + cfl, cfl},
    {"LastCompleteWaveCounts",
     "SourceType{ " + without("my", scattered) + scattered + "GaussianBeam{ " + wave + "} } ",
     "SourceType{ " + scattered + "} "},
    {"UnknownKeyDropsTheWaveAndTheRestOfTheRunParameters",
     "SourceType{ ScatteredFieldPlaneWave{ " + wave + "XLower; } } " + cfl, "", frequency, frequencySaved},
    {"AreaSourceFileWithoutWaveIsNotWritten", "SourceType{ AreaSourceFile area.txt; } ", ""},
    {"WaveformNumbersDefaultToZeroAndSectionsAccumulate",
     "Waveform{ Gaussian{ pulseWidth 64; } Step{ } } Waveform{ GaussianDerivative{ } } ",
     "Waveform{ Gaussian{ pulseWidth 64; } Step{ pulseWidth 0; } GaussianDerivative{ pulseWidth 0; } } "},
    {"UnknownWaveformsAndWordsAreDropped",
     "Waveform{ Sinusoid{ frequency 9; pulseWidth 7; } bar{ Step{ } } foo; ModulatedGaussian{ foo frequency 3; } } ",
     "Waveform{ Sinusoid{ frequency 9; } ModulatedGaussian{ pulseWidth 0; frequency 3; } } "},
    {"IECWaveformEndsItsSectionAndTheRunParameters",
     "Waveform{ Step{ } IEC_61000_4_2{ } Gaussian{ } } UseTimestep 1; ",
     "Waveform{ Step{ pulseWidth 0; } IEC_61000_4_2{ } } ", frequency, frequencySaved},
    {"CloseLineOfAnotherNameIsIgnored", "Waveform{ Gaussian{ end_<gaussian>; pulseWidth 64; } } ",
     "Waveform{ Gaussian{ pulseWidth 64; } } "},
    {"SamplesAreWrittenUpToTheMaximumTimestep",
     "TerminationCriteria{ MaximumTimeSteps 1; } "
     "Waveform{ UserDefined{ foo; Source{ 1 2.5; 3; } Derivative{ 0.25; -1; 7; } bar{ 8; } } "
     "UserDefined{ Derivative{ 8; 9; } Source{ 5; 6; } } } ",
     "TerminationCriteria{ MaximumTimeSteps 1; MaximumWallClockSeconds 0; } "
     "Waveform{ UserDefined{ Source{ 1; 2.5; } Derivative{ 0.25; -1; } } "
     "UserDefined{ Source{ 5; 6; } Derivative{ 8; 9; } } } "},
    {"OldDFTParametersAreSkippedUnlessUsed", "Waveform{ DFTParameters{ NormalizeFields; } UseDFT; Step{ } } ",
     "Waveform{ Step{ pulseWidth 0; } } ", frequency, frequencySaved},
    {"OldDFTParametersAddFrequencies",
     "Waveform{ foo UseDFT; DFTParameters{ DFTFrequencies{ foo SingleFrequency 1 A; SingleFrequency 2 B; } "
     "DissipatedPower NormalizeFields; PortDataStorage 6 SSEFieldSampling 4; SSHFieldSampling 5; } Step{ } } ",
     "Waveform{ Step{ pulseWidth 0; } } ", frequency,
     "DFTParameters{ NormalizeFields; DataSampling 4; } SteadyStateStorageMethodIsMemory; "
     "SteadyStateFrequencies{ FrequencyFolder 2 B; FrequencyFolder 1 F; } "},
    {"TimestepTakesPrecedenceOverCourantFactor", "UseUsersCFL 0.5; UseTimestep 0.25; ", "UseTimestep 0.25; "},
    {"RunParametersDropUnknownContent",
     "foo UseTimestep 1; BatchFrequencies{ UseTimestep 1; } bar{ UseTimestep 1; } UseUsersCFL 0.5; ", cfl},
    {"ResultSettingsAreNotWrittenWithoutFrequencies", "", "",
     "SteadyStateStorageMethodIsHardDisk; DontSaveFarZoneBoxFile; DFTParameters{ DataSampling 3; } ", ""},
    {"ResultLinesCountOnlyAsAWhole", "", "",
     "\tSteadyStateStorageMethodIsHardDisk; DontSaveFarZoneBoxFile ; dontComputeSystemDissipatedPower; " + frequency,
     "DFTParameters{ DataSampling 1; } SteadyStateStorageMethodIsHardDisk; " + frequency},
    {"LaterResultLinesCountAndFoldersHaveNoBlanks", "", "",
     "SteadyStateFrequencies{ foo FrequencyFolder 1 A; FrequencyFolder 2 my folder; foo{ FrequencyFolder 3 B; } } "
     "SteadyStateStorageMethodIsHardDisk; SteadyStateStorageMethodIsMemory; foo{ DFTParameters{ } } "
     "DFTParameters{ foo{ NormalizeFields; } DataSampling 7; foo DataSampling 6; } DontComputeSystemDissipatedPower; ",
     "DFTParameters{ DataSampling 7; } SteadyStateStorageMethodIsMemory; DontComputeSystemDissipatedPower; "
     "SteadyStateFrequencies{ FrequencyFolder 2 my; } "},
    {"DisplayUnitsAreReadAndModelingUnitsAreNot", "", "", "", "",
     "Display{ Name mm; Conversion 0.001; } Modeling{ Name inch; Conversion 2; } ", "Name mm; Conversion 0.001; "},
    {"ModelingUnitsAreReadWhenTheyComeFirst", "", "", "", "",
     "Modeling{ Name mm; Conversion 2; } Display{ Name inch; Conversion 3; } ", metres, "Name mm; Conversion 2; "},
    {"UnitsWithoutInnerBlockAreDisplayUnits", "", "", "", "",
     "foo{ Name inch; } foo Name inch; Name Å; Conversion 5e-324; ", "Name Å; Conversion 4.9406564584124654e-324; "},
    {"UnitNameIsOneWord", "", "", "", "", "Display{ Name my m; Conversion 2; } ", "Name my; Conversion 2; "},
    {"MissingUnitNameTakesTheNextWord", "", "", "", "", "Display{ Name ; Conversion 2; } ",
     "Name Conversion; Conversion 1; "},
};
// clang-format on

TEST(ProjectText, SectionsAreSavedInCanonicalForm) {
    for (const auto& row : sectionRows) {
        SCOPED_TRACE(row.behaviour);
        const QString units = "Display{ " + row.displaySaved + "} Modeling{ " + row.modelingSaved + "} ";
        expectLoads(fileOf(row.run, row.requests, row.units), fileOf(row.runSaved, row.requestsSaved, units), saved);
    }
}

// Keys without a block, as samples are, have no line of their own.
TEST(ProjectText, FormatReferenceHasEveryLineOfTheGoldenFile) {
    QStringList described, open;
    for (const FormatBlock& block : projectFormat()) {
        for (const FormatLine& line : block.lines) described << block.path + '/' + line.key;
    }
    for (const QString& line : golden.split('\n', Qt::SkipEmptyParts).mid(1)) {
        const QString name = line.section('<', 1).section('>', 0, 0), word = line.section(' ', 0, 0);
        if (line.startsWith("end_<")) {
            open.removeLast();
            continue;
        }
        const bool opens = line.startsWith("begin_<");
        const QStringList path = open + QStringList(opens ? name : word);
        const bool isSample = open.endsWith("Source") || open.endsWith("Derivative");
        const QString expected = isSample ? open.join('/') + '/' : path.join('/');
        EXPECT_TRUE(path.size() == 1 || described.contains(expected)) << expected.toStdString();
        if (opens) open = path;
    }
}

TEST(ProjectText, FirstLineDeterminesTheVersion) {
    // clang-format off
    const struct { const char* line; unsigned major, minor; } rows[] = {
        {"Version 8", 8, 0}, {"Version 9", 9, 0}, {"Version 10", 1, 0}, {"Version", 0, 0}, {"My Version 9", 0, 0},
        {"FDTD file version 3.28", 3, 28}, {"Version x", 0, 0}, {"# FDTD file version 9.01", 9, 1}, {"", 0, 0}};
    // clang-format on
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        QString text = QString(golden).replace("Version 8", row.line);
        QTextStream stream(&text, QIODevice::ReadOnly);
        OwnedProject project;
        QStringList errors;
        const bool supported = project.loadFromStream(stream, errors);
        EXPECT_EQ(supported, row.major <= 8);
        EXPECT_EQ(project.GetMajorFileVersionNumber(), row.major);
        EXPECT_EQ(project.GetMinorFileVersionNumber(), row.minor);
        EXPECT_EQ(project.getBoundaryConditions() != nullptr, supported);
        EXPECT_EQ(errors, supported ? QStringList() : QStringList("This project file version is unsupported."));
    }
    QString text = golden;
    QTextStream stream(&text);
    stream.setStatus(QTextStream::ReadCorruptData);
    unsigned major = 41, minor = 42;
    v6ProjectFile::getFileVersion(stream, major, minor);
    EXPECT_EQ(major * 100 + minor, 4142U) << "a stream in error leaves both unchanged";
}

TEST(ProjectText, OuterBlockNamesTheEngineAndIsTheOnlyOneRead) {
    const QString inches = "Display{ Name inch; Conversion 0.025399999999999999; } Modeling{ ";
    const QString fem = fileOf("", "", inches + "Name mm; Conversion 0.001; } ", "FEMProject");
    OwnedProject project;
    project.setModelingUnits({"mm", 0.001});
    load(project, fem);
    EXPECT_EQ(project.getEngine(), Engine::FEM);
    EXPECT_EQ(saved(project), fem);
    load(project, "Version 8\nbegin_<FDTDProject> \nfoo\nend_<FDTDProject>\n");
    EXPECT_EQ(project.getEngine(), Engine::FDTD);

    const QString foo = expanded("Version 8; Foo{ RunParameters{ OuterBoundaries{ } } }");
    const QString closed = expanded("Version 8; FDTDProject{ }"), lower = QString(golden).replace("FDTDP", "fdtdP");
    for (const QString& text : {QString(), "Version 8\nfoo\n" + golden, lower, foo + golden, closed + golden.mid(10)}) {
        OwnedProject other;
        load(other, text);
        EXPECT_EQ(other.getBoundaryConditions(), nullptr) << text.left(40).toStdString();
    }
}

TEST(ProjectText, LoadResetsSomeSettingsAndKeepsOrExtendsOthers) {
    OwnedProject project;
    project.setUseUsersCFL(true);
    project.setUseExplicitlySuppliedTimestep(true);
    project.setSaveFieldsOnFarZoneBoxForPostProcessing(false);
    project.setComputeSystemDissipatedPower(false);
    project.getWaveforms() = {new Waveform(Waveform::Sinusoid, 0, 9, {}, {})};
    project.getSteadyStateFrequencies() = {{5, "A"}};
    auto* tdAfsCriteria = new TdAfsTerminationCriteria;
    project.setTdAfsTerminationCriteria(tdAfsCriteria);
    const QString run =
        "OuterBoundaries{ PeriodicParameters{ UseScanAngle; Frequency 7; UseWaveformFrequency; } } "
        "TerminationCriteria{ } Waveform{ Step{ } } ";
    load(project, fileOf(run, frequency, ""));
    EXPECT_FALSE(project.getUseUsersCFL() || project.getUseExplicitlySuppliedTimestep());
    EXPECT_TRUE(project.saveFieldsOnFarZoneBoxForPostProcessing());
    EXPECT_FALSE(project.computeSystemDissipatedPower());
    EXPECT_EQ(project.getWaveforms().size(), 2U);
    EXPECT_EQ(project.getSteadyStateFrequencies().size(), 2U);
    EXPECT_EQ(project.getTdAfsTerminationCriteria(), tdAfsCriteria);
    EXPECT_EQ(project.getBoundaryConditions()->getFrequency(), 9.0F) << "the frequency of the earlier waveform";
}

TEST(ProjectText, LoadSetsMembersThatAreNotSaved) {
    OwnedProject project, other;
    const QString minimum = "ConvergenceRequireMinimumNumberOfTimeSteps; ConvergenceMinimumNumberOfTimeSteps 500; ";
    load(project,
         fileOf("UseTimestep 2; UseUsersCFL 0.5; AmbientConditions{ } Convergence{ " + minimum + "} ", "", ""));
    EXPECT_TRUE(project.getUseExplicitlySuppliedTimestep() && project.getUseUsersCFL());
    EXPECT_EQ(*project.getTerminationCriteria(), TerminationCriteria(500, 501, 0));
    EXPECT_EQ(project.getTdAfsTerminationCriteria(), nullptr);
    EXPECT_EQ(*project.getAmbientConditions(), A(298.15F, A::SpecificationType(2), 0, A::SpecificationType(2), 0));
    load(other, fileOf("TerminationCriteria{ } ", "", ""));
    EXPECT_EQ(*other.getTdAfsTerminationCriteria(), TdAfsTerminationCriteria());
}

const QByteArray damagedAtFirst = "\xEC\x83\n" + expanded("FDTDProject{ Units{ Display{ Name km; } } } ").toUtf8();

TEST(ProjectText, DamagedFirstLineDoesNotHideTheBlocks) {
    QTextStream stream(damagedAtFirst);
    stream.setCodec("UTF-8");
    QStringList errors;
    OwnedProject project;
    EXPECT_TRUE(project.loadFromStream(stream, errors));
    EXPECT_EQ(project.getDisplayUnits().first, "km");
}

TEST(ProjectText, StreamInErrorIsResetAndNotRead) {
    onBothStreams("Version 8\n" + expanded("FDTDProject{ Units{ Display{ Name km; } } } "), [](QTextStream& stream) {
        stream.setStatus(QTextStream::ReadPastEnd);
        OwnedProject project;
        QStringList errors;
        EXPECT_TRUE(project.loadFromStream(stream, errors));
        EXPECT_EQ(project.getDisplayUnits().first, "m");
        EXPECT_EQ(stream.status(), QTextStream::Ok);
    });
}

TEST(ProjectText, NullWaveformsAreIgnored) {
    OwnedProject project;
    const auto pec = BoundaryConditions::PEC;
    project.setBoundaryConditions(new BoundaryConditions(pec, pec, pec, pec, pec, pec, 0));
    project.getWaveforms() = {nullptr, new Waveform(Waveform::Step, 64, 0, {}, {})};
    QStringList errors, warnings;
    project.checkValidity(errors, warnings);
    EXPECT_TRUE(saved(project).contains(expanded("Waveform{ Step{ pulseWidth 64; } } ")));
}

TEST(ProjectText, LoadsDeeplyNestedAndRepeatedBlocks) {
    OwnedProject nested, repeated;
    load(nested, fileOf(QString("foo{ ").repeated(100000) + QString("} ").repeated(100000) + cfl, "", ""));
    EXPECT_TRUE(nested.getUseUsersCFL());
    const int run = golden.indexOf("begin_<OuterB"), dft = golden.indexOf("begin_<DFT");
    const QString sections = golden.mid(run, golden.indexOf("UseTimestep") - run);
    const QString parameters = golden.mid(dft, golden.indexOf("SteadyStateStorage") - dft);
    load(repeated, QString(golden).insert(dft, parameters).insert(run, sections));
    EXPECT_EQ(repeated.getWaveforms().size(), 12U) << "the other objects were replaced and must have been deleted";
}

TEST(ProjectText, FailedSaveWritesNothing) {
    OwnedProject project;
    QTemporaryDir directory;
    QFile file(directory.filePath("project"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    QTextStream stream(&file);
    try {
        EXPECT_THROW(project.save(file.fileName(), stream, file), std::runtime_error);
        project.saveToStream(stream);
        ADD_FAILURE() << "saved without boundary conditions";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(),
                     "quarn::v6ProjectFile::StreamOutBoundaryConditions: boundary condition have not been set");
    }
    stream.flush();
    EXPECT_EQ(file.size(), 0) << "nothing is written";
    describe(project);
    file.close();
    EXPECT_TRUE(project.saveToStream(stream)) << "true stands for an error";
}

// Loads a file with these bytes, which load() opens again at `reopened`, and returns the errors.
QStringList loadFromFile(v6ProjectFile& project, const QByteArray& bytes, const QString& path, const QString& reopened,
                         bool loads) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QTextStream stream(&file);
    QStringList errors;
    EXPECT_EQ(project.load(reopened, file, stream, errors), loads);
    return errors;
}

void expectSavesAndLoadsFiles() {
    QTemporaryDir directory;
    QFile file(directory.filePath("project.fdtd")), result(file.fileName());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    QTextStream stream(&file);
    OwnedProject project;
    describe(project);
    EXPECT_EQ(saved(project), golden);
    EXPECT_FALSE(project.save(file.fileName(), stream, file)) << "save always returns false";
    EXPECT_TRUE(!file.isOpen() && result.open(QIODevice::ReadOnly));
    const QByteArray bytes = result.readAll();
    EXPECT_EQ(bytes, golden.toUtf8());
    for (const QByteArray& text : {bytes, QByteArray(bytes).replace("\n", "\r\n")}) {
        OwnedProject loaded;
        EXPECT_EQ(loadFromFile(loaded, text, file.fileName(), file.fileName(), true), QStringList());
        EXPECT_EQ(saved(loaded), golden);
    }
}

// The locale of a host application, its decimal comma and its 8-bit encoding must not affect the file.
TEST(ProjectFiles, AreSavedAndLoadedInAnyLocale) {
    const std::string locale = std::setlocale(LC_ALL, nullptr);
    expectSavesAndLoadsFiles();
    QLocale::setDefault(QLocale::German);
    for (const char* name : {"de_DE", "de_DE.UTF-8"}) std::setlocale(LC_ALL, name);
    expectSavesAndLoadsFiles();
    std::setlocale(LC_ALL, "C");
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));  // which lacks an omega
    expectSavesAndLoadsFiles();
    QTextCodec::setCodecForLocale(nullptr);
    QLocale::setDefault(QLocale::c());
    std::setlocale(LC_ALL, locale.c_str());
}

TEST(ProjectFiles, AreRefusedWhenUnsupportedOrMissing) {
    QTemporaryDir directory;
    const QString path = directory.filePath("Prüfung Ω.fdtd");
    OwnedProject project;
    EXPECT_EQ(loadFromFile(project, golden.toUtf8(), path, path, true), QStringList()) << "a name beyond ASCII";
    deleteContents(project);
    EXPECT_EQ(loadFromFile(project, golden.toUtf8(), path, path + ".gone", false), QStringList());
    EXPECT_EQ(loadFromFile(project, damagedAtFirst, path, path, true), QStringList());
    EXPECT_EQ(project.getDisplayUnits().first, "km");
    EXPECT_EQ(loadFromFile(project, "Version 9\n" + golden.mid(10).toUtf8(), path, path, false),
              QStringList("This project file version is unsupported."));
    EXPECT_EQ(project.getBoundaryConditions(), nullptr);
}

}  // namespace
}  // namespace quarn::test
