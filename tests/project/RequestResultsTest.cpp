#include <gmock/gmock.h>

#include "EachMember.h"
#include "TestSupport.h"
#include "quarn/quarn.h"

namespace quarn::test {
namespace {

using B = BoundaryConditions;

/// A project with the boundary conditions that saving requires.
class Project : public OwnedProject {
public:
    Project() { setBoundaryConditions(new B(B::CPML, B::CPML, B::CPML, B::CPML, B::CPML, B::CPML, 8)); }
};

// The saved content of the results block, and a file with such a block in short form.
QString requestsOf(v6ProjectFile& project) {
    const QString begin = "begin_<RequestResults> \n";
    const QString text = saved(project);
    return text.mid(text.indexOf(begin) + begin.size()).remove("end_<RequestResults>\nend_<FDTDProject>\n");
}
QString fileWith(const QString& requests) {
    return expanded("Version 8; FDTDProject{ RequestResults{ " + requests + "} }");
}

const QString frequencies =
    "DFTParameters{ DataSampling 1; } SteadyStateStorageMethodIsHardDisk; DontSaveFarZoneBoxFile; "
    "SteadyStateFrequencies{ FrequencyFolder 1 F; } ";
const QString parameters = "; density 1; heatCapacity 2; thermalConductivity 3; perfussionByBlood 4; metabolicHeat 5; ";

// clang-format off
// One request of each kind, in file order.
const QString everyRequest =
    "MultiFieldIndexedPoint{ Definition{ File point 1; MinTimestep 1; MaxTimestep 2; DeltaTimestep 3; TotalE; ScatteredE; "
    "TotalH; ScatteredH; TotalB; ScatteredB; J; } XIndex -4; YIndex 5; ZIndex 2147483647; } "
    "MultiFieldInterpolatedPoint{ Definition{ File ; MinTimestep -1; MaxTimestep -1; DeltaTimestep -1; ScatteredH; } "
    "XPosition 0.10000000149011612; YPosition -2; ZPosition 3.5; } "
    "MultiPointFieldRequest{ MinTimestep 1; MaxTimestep 2; DeltaTimestep 3; File Größe; TransientTotalE; "
    "TransientTotalH; TransientTotalB; TransientJ; TransientScatteredE; TransientScatteredH; TransientScatteredB; "
    "SteadyTotalE; SteadyTotalH; SteadyTotalB; SteadyJ; Snapped; GridBoxes 2 0 1 2 3 4 5 10 10 10 10 10 11; "
    "PointsToRemoveFromBoxes 2 0 1 3 10 10 11; AdditionalPoints 2 9 8 7 -1 -1 -1; } "
    "RawSARPlanes{ Plane ZX 4; Plane XY 5; Plane YZ 4294967295; Plane XY 0; } "
    "TemperatureRiseRequest{ begin_<PhysicalParameters> Immersive" + parameters + "end_<PhysicalParameters>; "
    "begin_<PhysicalParameters> Perfusive" + parameters + "end_<PhysicalParameters>; "
    "begin_<PhysicalParameters> FreeSpace" + parameters + "end_<PhysicalParameters>; "
    "begin_<PhysicalParameters> PEC" + parameters + "end_<PhysicalParameters>; "
    "load_whole_space; keep_initial_temperatures; keep_final_temperatures; load_initial_temperatures; "
    "initial_temperature_filename before; final_temperature_filename after all; steady_state_type maximum_delta; "
    "requested_input_power 0.25; steady_state_temperature_change 0.5; plane_type ZX; immersive_medium_temperature 300; "
    "perfusive_medium_temperature 310; override_timestep_delta_time; default_delta_time 7; requested_delta_time 8; "
    "maximum_number_of_timesteps 9; lower_bound  1 2 3; upper_bound  4 5 6; } "
    "SARAveraging{ average_one_gram; average_ten_grams; automatic_subregion; automatic_subregion_cutoff_in_db -20; "
    "lower_bound  1 2 3; upper_bound  4 5 6; save_ten_gram_x_slices; save_ten_gram_y_slices; save_ten_gram_z_slices; "
    "save_one_gram_x_slices; save_one_gram_y_slices; save_one_gram_z_slices; outside_region_treated_as_air; "
    "materials_to_use 2 0 255; outputAveragedFileName my sar; } "
    "FarZoneRequests{ SteadyState{ OutputFileName a.fz; Angle 1 2; } SteadyState{ OutputFileName ; } "
    "Transient{ OutputFileName b; } } ";
const QString hac = "HACRequest{ Origin 1 2 3; U 4 0.10000000000000001 6; V 7 8 9; W 0 1 2; } ";
// clang-format on

TEST(RequestResults, EveryRequestIsReadAndWrittenInOrder) {
    Project project;
    const QString text = everyRequest + frequencies + hac;
    load(project, fileWith(text));
    EXPECT_EQ(requestsOf(project), expanded(text));
    EXPECT_EQ(project.getSteadyStateFarZoneRequests(), (std::vector<FarZoneRequest>{{{{1, 2}}, "a.fz"}, {}}));
    EXPECT_EQ(project.getTransientFarZoneRequests(), (std::vector<FarZoneRequest>{{{}, "b"}}));
    EXPECT_EQ(*project.getHACRequests().at(0), (HACRequest{{1, 2, 3}, {4, 0.1, 6}, {7, 8, 9}, {0, 1, 2}}));

    project.getHACRequests().push_back(nullptr);
    auto& planes = project.getSARPlaneRequests();
    const auto unknown = static_cast<SARPlane::Plane>(3);
    planes.insert(planes.end(), {nullptr, new SARPlane(unknown, 8), new SARPlane(SARPlane::ZX, 7), new SARPlane});
    EXPECT_EQ(requestsOf(project),
              expanded(QString(text).replace("Plane XY 0;", "Plane XY 0; Plane  8; Plane ZX 7; Plane XY 0;")));
}

TEST(RequestResults, CopiesShareOnlyPlanesAndMeasurements) {
    Project source;
    load(source, fileWith(everyRequest + hac));
    v6ProjectFile copy(source), assigned;
    EXPECT_EQ(requestsOf(copy), expanded(everyRequest)) << "HAC requests are saved only with frequencies";
    EXPECT_NE(copy.getSARAveragingRequest(), source.getSARAveragingRequest());
    EXPECT_NE(copy.getTemperatureRiseRequest(), source.getTemperatureRiseRequest());
    EXPECT_EQ(copy.getHACRequests(), source.getHACRequests());
    EXPECT_EQ(copy.getSARPlaneRequests(), source.getSARPlaneRequests());
    copy.getHACRequests().clear();
    copy.getSARPlaneRequests().clear();
    deleteContents(copy);
    EXPECT_EQ(requestsOf(source), expanded(everyRequest));

    delete assigned.getDFTParameters();
    assigned = source;
    EXPECT_EQ(assigned.getSARAveragingRequest(), source.getSARAveragingRequest());
    EXPECT_EQ(requestsOf(assigned), requestsOf(source));
    deleteContents(source);
    source.setBoundaryConditions(new B(B::PEC, B::PEC, B::PEC, B::PEC, B::PEC, B::PEC, 8));
    EXPECT_EQ(requestsOf(source), QString());
}

TEST(RequestResults, LoadAppendsToListsAndResetsTheAveragingRequest) {
    Project project;
    load(project, fileWith(everyRequest + hac));
    const std::unique_ptr<const SARAveragingRequest> averaging(project.getSARAveragingRequest());
    const std::unique_ptr<const TemperatureRiseRequest> temperature(project.getTemperatureRiseRequest());
    load(project,
         fileWith("SARAveraging{ } RawSARPlanes{ Plane XY 1; } HACRequest{ } FarZoneRequests{ Transient{ } }"
                  "MultiPointFieldRequest{ } MultiFieldIndexedPoint{ } TemperatureRiseRequest{ } ") +
             "begin_<RequestResults> \nend_<RequestResults>\n");
    EXPECT_NE(project.getSARAveragingRequest(), averaging.get());
    EXPECT_EQ(averaging->getOutputAveragedFileName(), "my sar");
    EXPECT_NE(project.getTemperatureRiseRequest(), temperature.get());
    EXPECT_EQ(project.getSARPlaneRequests().size(), 5U);
    EXPECT_EQ(project.getHACRequests().size(), 2U);
    EXPECT_EQ(*project.getHACRequests().back(), HACRequest());
    EXPECT_EQ(project.getTransientFarZoneRequests().size(), 2U);
    EXPECT_EQ(project.GetMultiPointFieldRequests().size(), 2U);
    EXPECT_EQ(project.GetNearZoneMultiFieldIndexedPoints().size(), 2U);

    load(project, fileWith("SARAveraging{ } } RequestResults{ "));
    EXPECT_EQ(project.getSARAveragingRequest(), nullptr) << "the second block has none";
}

QString multiPoint(const QString& lists, const QString& lines = QString(), int firstStep = -1) {
    return QString("MultiPointFieldRequest{ MinTimestep %1; MaxTimestep -1; DeltaTimestep -1; File ; ").arg(firstStep) +
           lines + lists + "} ";
}
const QString noBoxes = "GridBoxes 0; PointsToRemoveFromBoxes 0; ";
const QString threePoints = "GridIndices 3 1 2 3 4 5 6 7 8 9; ";
const QString definition = "Definition{ File ; MinTimestep -1; MaxTimestep -1; DeltaTimestep -1; } ";
const QString origin = "XIndex 0; YIndex 0; ZIndex 0; ";
const QString noAveraging = "lower_bound  0 0 0; upper_bound  0 0 0; outputAveragedFileName project; ";
const QString noParameters = QString(parameters).replace(QRegExp("[1-5];"), "0;") + "end_<PhysicalParameters>; ";

QString temperatureRise(const QString& immersive, const QString& plane) {
    return "TemperatureRiseRequest{ begin_<PhysicalParameters> Immersive" + immersive +
           "begin_<PhysicalParameters> Perfusive" + noParameters + "begin_<PhysicalParameters> FreeSpace" +
           noParameters + "begin_<PhysicalParameters> PEC" + noParameters +
           "steady_state_type maximum_delta; requested_input_power 0; steady_state_temperature_change 0; plane_type " +
           plane +
           "; immersive_medium_temperature 0; perfusive_medium_temperature 0; default_delta_time 0; "
           "requested_delta_time 0; maximum_number_of_timesteps 0; lower_bound  0 0 0; upper_bound  0 0 0; } ";
}

// clang-format off
const struct {
    const char* name;
    QString read, written;
} rows[] = {
    {"GridIndicesAlone", "MultiPointFieldRequest{ " + threePoints + "} ",
     multiPoint(noBoxes + "AdditionalPoints 3 1 2 3 4 5 6 7 8 9; ")},
    {"GridIndicesBecomeBoxes", "MultiPointFieldRequest{ GridIndices 4 0 0 0 0 0 1 0 0 3 0 0 1; } ",
     multiPoint("GridBoxes 1 0 0 0 0 0 3; PointsToRemoveFromBoxes 1 0 0 2; AdditionalPoints 0; ")},
    {"GridIndicesBesideEmptyLists",
     "MultiPointFieldRequest{ " + threePoints + "GridBoxes 0; AdditionalPoints -3; PointsToRemoveFromBoxes 1 1 2 3; } ",
     multiPoint(noBoxes + "AdditionalPoints 3 1 2 3 4 5 6 7 8 9; ")},
    {"BoxesBeforeGridIndices", "MultiPointFieldRequest{ GridIndices 1 5 5 5; GridBoxes 1 0 0 0 2 2 2; } ",
     multiPoint("GridBoxes 1 0 0 0 2 2 2; PointsToRemoveFromBoxes 0; AdditionalPoints 0; ")},
    {"AdditionalPointsBeforeGridIndices", "MultiPointFieldRequest{ " + threePoints + "AdditionalPoints 1 5 5 5; } ",
     multiPoint(noBoxes + "AdditionalPoints 1 5 5 5; ")},
    {"RemovedPointsCountOnceAndOnlyInBoxes",
     "MultiPointFieldRequest{ PointsToRemoveFromBoxes 4 0 0 1 9 9 9 0 0 0 0 0 1; GridBoxes 1 0 0 0 0 0 2; } ",
     multiPoint("GridBoxes 1 0 0 0 0 0 2; PointsToRemoveFromBoxes 2 0 0 0 0 0 1; AdditionalPoints 0; ")},
    {"ListsInPiecesAndOverLines",
     "MultiPointFieldRequest{ AdditionalPoints 1 1 2 3; AdditionalPoints 1; 4 5; 6; AdditionalPoints 0; } ",
     multiPoint(noBoxes + "AdditionalPoints 2 1 2 3 4 5 6; ")},
    {"HugeCountEndsWithTheLine", "MultiPointFieldRequest{ GridBoxes 2000000000 1 1 1 2 2 2 3 3 3 4; } ",
     multiPoint("GridBoxes 1 1 1 1 2 2 2; PointsToRemoveFromBoxes 0; AdditionalPoints 0; ")},
    {"CountBeyondIntegersIsTakenAsZero", "MultiPointFieldRequest{ AdditionalPoints 3000000000 1 1 1; Snapped; } ",
     multiPoint(noBoxes + "AdditionalPoints 0; ", "Snapped; ")},
    {"UnknownWordsAndBlocksOfPoints",
     "MultiPointFieldRequest{ foo Snapped; foo{ Snapped; } SteadyJ SteadyTotalE; Snapped 0; MinTimestep 7; } ",
     multiPoint(noBoxes + "AdditionalPoints 0; ", "SteadyTotalE; SteadyJ; Snapped; ", 7)},
    {"PointsWithUnknownLines",
     "MultiFieldIndexedPoint{ foo XIndex 1; foo{ YIndex 1; } XPosition 2; Definition{ foo J; J{ } File  my file ; "
     "TotalB; } ZIndex 3; } MultiFieldInterpolatedPoint{ ZPosition 1e-3; XIndex 1; } ",
     "MultiFieldIndexedPoint{ Definition{ File my file; MinTimestep -1; MaxTimestep -1; DeltaTimestep -1; TotalB; } "
     "XIndex 0; YIndex 0; ZIndex 3; } MultiFieldInterpolatedPoint{ " + definition +
     "XPosition 0; YPosition 0; ZPosition 0.0010000000474974513; } "},
    {"PlanesEndAtAnotherWord", "RawSARPlanes{ Plane XZ 4; Plane zx 5; Planes YZ 6; } MultiFieldIndexedPoint{ } ",
     "RawSARPlanes{ Plane XY 4; Plane XY 5; } "},
    {"PlanesEndAtABlock", "RawSARPlanes{ Plane YZ 4; foo{ } Plane ZX 1; } ", "RawSARPlanes{ Plane YZ 4; } "},
    {"FarZoneRequestsAmongOthers", "FarZoneRequests{ foo SteadyState; foo{ Transient{ } } Transient{ Angle 1 2; } } ",
     "FarZoneRequests{ Transient{ OutputFileName ; Angle 1 2; } } "},
    {"AveragingDefaultsAndDropsLines",
     "SARAveraging{ foo average_one_gram; automatic_subregion_cutoff_in_db 3; materials_to_use -1; } ",
     "SARAveraging{ " + noAveraging + "} "},
    {"AveragingTakesInnerBlocksAsLines", "SARAveraging{ foo{ average_one_gram; } } ",
     "SARAveraging{ average_one_gram; " + noAveraging + "} "},
    {"AveragingMaterialsHaveEightBits", "SARAveraging{ materials_to_use 3 1 256 511; outputAveragedFileName  a b ; } ",
     "SARAveraging{ lower_bound  0 0 0; upper_bound  0 0 0; materials_to_use 3 1 0 255; outputAveragedFileName a b; } "},
    {"AveragingSlicesByTheirNormal", "SARAveraging{ save_one_gram_x_slices; save_ten_gram_z_slices; } ",
     "SARAveraging{ lower_bound  0 0 0; upper_bound  0 0 0; save_ten_gram_z_slices; save_one_gram_x_slices; "
     "outputAveragedFileName project; } "},
    {"TemperatureRiseDefaults", "TemperatureRiseRequest{ } ", temperatureRise(noParameters, "XY")},
    {"TemperatureRiseLenientNames",
     "TemperatureRiseRequest{ plane_type XZ; steady_state_type foo; foo{ plane_type YZ; } foo plane_type YZ; "
     "begin_<PhysicalParameters> Body; density 9; end_<PhysicalParameters>; "
     "begin_<PhysicalParameters> Immersive; density 9; end_<PhysicalParameters>; initial_temperature_filename ; } ",
     temperatureRise(QString(noParameters).replace("density 0", "density 9"), "ZX")},
    {"HACWordsAreReadOneByOne", frequencies + "HACRequest{ foo Origin 1 2 3 4 U 5 6 7; V{ 1 2 3; } end_<V>; W 8 x; } ",
     frequencies + "HACRequest{ Origin 1 2 3; U 5 6 7; V 0 0 0; W 8 0 0; } "},
    {"HACWithoutFrequenciesIsLost", hac, ""},
    {"UnknownBlocksAndLines", "RawSARPlanes{ } foo{ MultiFieldIndexedPoint{ } } foo; MultiFieldIndexedPoint{ } ",
     "MultiFieldIndexedPoint{ " + definition + origin + "} "},
};
// clang-format on

TEST(RequestResults, RequestsAreWrittenInCanonicalForm) {
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        expectLoads<Project>(fileWith(row.read), expanded(row.written), requestsOf);
    }
}

TEST(RequestResults, RequestsWithTooManyOverlappingBoxesAreDropped) {
    const QString boxes = "GridBoxes 1100" + QString(" 0 0 0 9 9 39").repeated(1100) + "; ";
    QString removed = "PointsToRemoveFromBoxes 1100";
    for (int i = 0; i < 1100; ++i) removed += QString(" %1 %2 %3").arg(i / 400).arg(i / 40 % 10).arg(i % 40);
    Project project;
    load(project,
         fileWith("MultiPointFieldRequest{ " + boxes + removed + "; } MultiPointFieldRequest{ Snapped; } " +
                  frequencies));
    ASSERT_EQ(project.GetMultiPointFieldRequests().size(), 1U);
    EXPECT_TRUE(project.GetMultiPointFieldRequests().front().snapped);
    EXPECT_EQ(project.getSteadyStateFrequencies().size(), 1U);
}

/// Compares the lines that are written for each request but not for the first one, each with the label of its block.
/// Each request must be read back equal, unless it writes no such line. `lines` are separated by bars.
template <class Request, class Put, class Get>
void expectLines(const std::vector<Request>& requests, const QString& lines, Put put, Get get) {
    const auto labelledLines = [&](const Request& request) {
        Project project;
        put(project, request);
        QStringList result;
        QString label;
        for (const QString& line : requestsOf(project).split('\n')) {
            if (line.startsWith("begin_<")) label = line.section("> ", 1);
            result << (label.isEmpty() ? line : label + ": " + line);
            if (line.startsWith("end_<")) label.clear();
        }
        return result;
    };
    const QStringList blank = labelledLines(requests.front()), expectedLines = lines.split('|');
    ASSERT_EQ(static_cast<std::size_t>(expectedLines.size()), requests.size() - 1);
    expectAllDifferent(requests);
    for (std::size_t i = 1; i < requests.size(); ++i) {
        QStringList added = labelledLines(requests[i]);
        for (const QString& line : blank) added.removeOne(line);
        const QString& expected = expectedLines[static_cast<int>(i) - 1];
        EXPECT_EQ(added.join("; "), expected);
        Project project;
        OwnedProject loaded;
        put(project, requests[i]);
        load(loaded, saved(project));
        EXPECT_EQ(get(loaded) == requests[i], !expected.isEmpty()) << expected.toStdString();
    }
}

const std::tuple noFlags(false, false, false, false, false, false), allFlags(true, true, true, true, true, true);
const std::tuple noBounds(0U, 0U, 0U, 0U, 0U, 0U), bounds(1U, 2U, 3U, 4U, 5U, 6U);
const QString boundLines =
    "lower_bound  1 0 0|lower_bound  0 2 0|lower_bound  0 0 3|upper_bound  4 0 0|upper_bound  0 5 0|upper_bound  0 0 "
    "6|";

TEST(RequestMembers, AveragingRequestsCompareAndWriteEachMember) {
    const std::tuple noAverages(false, false, false), averages(true, true, true);
    const std::tuple rest(false, 0.0F, std::vector<std::uint8_t>()), changed(true, 7.0F, std::vector<std::uint8_t>{8});
    expectLines(
        changedOneByOne<SARAveragingRequest>(
            std::tuple_cat(noAverages, noBounds, rest, noFlags, std::tuple(QString("project"))),
            std::tuple_cat(averages, bounds, changed, allFlags, std::tuple(QString("a b")))),
        "average_one_gram|average_ten_grams|outside_region_treated_as_air|" + boundLines +
            "automatic_subregion; automatic_subregion_cutoff_in_db 0||materials_to_use 1 8|save_one_gram_z_slices|"
            "save_one_gram_y_slices|save_one_gram_x_slices|save_ten_gram_z_slices|save_ten_gram_y_slices|"
            "save_ten_gram_x_slices|outputAveragedFileName a b",
        [](auto& project, const auto& request) { project.setSARAveragingRequest(new SARAveragingRequest(request)); },
        [](const auto& project) { return *project.getSARAveragingRequest(); });
}

const PhysicalParameters noTissue(0, 0, 0, 0, 0), tissue(1, 0, 0, 0, 0);
const auto noTemperatureRise = std::tuple_cat(
    std::tuple(false, false, false, 0.0F, 0.0F, 0, 0, TemperatureRiseRequest::XY), noBounds,
    std::tuple(false, 0.0F, noTissue, noTissue, 0.0F, noTissue, noTissue, QString(), QString(), false, 0.0F, 0.0F));

TEST(RequestMembers, TemperatureRiseRequestsCompareAndWriteEachMember) {
    const auto changed = std::tuple_cat(
        std::tuple(true, true, true, 1.0F, 2.0F, 3, 3, TemperatureRiseRequest::ZX),
        bounds,
        std::tuple(true, 4.0F, tissue, tissue, 5.0F, tissue, tissue, QString("a"), QString("b"), true, 6.0F, 7.0F));
    expectLines(
        changedOneByOne<TemperatureRiseRequest>(noTemperatureRise, changed),
        "keep_initial_temperatures|keep_final_temperatures|load_initial_temperatures|requested_input_power 1|"
        "steady_state_temperature_change 2|maximum_number_of_timesteps 3||plane_type ZX|" +
            boundLines +
            "load_whole_space|immersive_medium_temperature 4|Immersive: density 1|Perfusive: density 1|"
            "perfusive_medium_temperature 5|FreeSpace: density 1|PEC: density 1|initial_temperature_filename a|"
            "final_temperature_filename b|override_timestep_delta_time|default_delta_time 6|requested_delta_time 7",
        [](auto& project, const auto& r) { project.setTemperatureRiseRequest(new TemperatureRiseRequest(r)); },
        [](const auto& project) { return *project.getTemperatureRiseRequest(); });
}

const QString definitionLines =
    "ScatteredE|TotalE|ScatteredH|TotalH|ScatteredB|TotalB|J|MinTimestep 1|MaxTimestep 2|DeltaTimestep 3|File a b";

TEST(RequestMembers, NearZonePointsCompareAndWriteEachMember) {
    const auto blank = std::tuple_cat(noFlags, std::tuple(false, -1, -1, -1, QString()));
    const auto changed = std::tuple_cat(allFlags, std::tuple(true, 1, 2, 3, QString("a b")));
    expectLines(
        changedOneByOne<NearZoneMultiFieldIndexedPoint>(std::tuple_cat(std::tuple(ivec3()), blank),
                                                        std::tuple_cat(std::tuple(ivec3(1, 2, 3)), changed)),
        "XIndex 1; YIndex 2; ZIndex 3|" + definitionLines,
        [](auto& project, const auto& point) { project.GetNearZoneMultiFieldIndexedPoints() = {point}; },
        [](const auto& project) { return project.GetNearZoneMultiFieldIndexedPoints().at(0); });
    expectLines(
        changedOneByOne<NearZoneMultiFieldInterpolatedPoint>(std::tuple_cat(std::tuple(0.0F, 0.0F, 0.0F), blank),
                                                             std::tuple_cat(std::tuple(1.0F, 2.0F, 3.0F), changed)),
        "XPosition 1|YPosition 2|ZPosition 3|" + definitionLines,
        [](auto& project, const auto& point) { project.GetNearZoneMultiFieldInterpolatedPoints() = {point}; },
        [](const auto& project) { return project.GetNearZoneMultiFieldInterpolatedPoints().at(0); });
    const NearZoneMultiFieldIndexedPoint indexed;
    EXPECT_NE(static_cast<const NearZoneMultiFieldPoint&>(indexed), NearZoneMultiFieldInterpolatedPoint());
}

TEST(RequestMembers, MultiPointRequestsCompareAndWriteEachMember) {
    using R = MultiPointFieldRequest;
    const std::pair<bool R::*, const char*> flags[] = {{&R::collectTransientTotalE, "TransientTotalE"},
                                                       {&R::collectTransientTotalH, "TransientTotalH"},
                                                       {&R::collectTransientTotalB, "TransientTotalB"},
                                                       {&R::collectTransientJ, "TransientJ"},
                                                       {&R::collectTransientScatteredE, "TransientScatteredE"},
                                                       {&R::collectTransientScatteredH, "TransientScatteredH"},
                                                       {&R::collectTransientScatteredB, "TransientScatteredB"},
                                                       {&R::collectSteadyTotalE, "SteadyTotalE"},
                                                       {&R::collectSteadyTotalH, "SteadyTotalH"},
                                                       {&R::collectSteadyTotalB, "SteadyTotalB"},
                                                       {&R::collectSteadyJ, "SteadyJ"},
                                                       {&R::snapped, "Snapped"}};
    std::vector<R> requests(1);
    QStringList lines;
    for (const auto& [flag, line] : flags) {
        requests.emplace_back().*flag = true;
        lines << line;
    }
    for (int R::*const step : {&R::minTimestep, &R::maxTimestep, &R::deltaTimestep}) requests.emplace_back().*step = 7;
    requests.emplace_back().outputFile = "Größe";
    requests.emplace_back().gridIndexBoxes = GridIndexBoxes(
        {{{0, 1, 2}, {3, 4, 5}}, {{8, 8, 8}, {8, 8, 9}}}, {{0, 1, 3}, {8, 8, 9}, {99, 9, 9}}, {{9, 8, 7}});
    lines << "MinTimestep 7"
          << "MaxTimestep 7"
          << "DeltaTimestep 7"
          << "File Größe"
          << "GridBoxes 2 0 1 2 3 4 5 8 8 8 8 8 9; PointsToRemoveFromBoxes 2 0 1 3 8 8 9; AdditionalPoints 1 9 8 7";
    expectLines(
        requests,
        lines.join('|'),
        [](auto& project, const auto& request) { project.GetMultiPointFieldRequests() = {request}; },
        [](const auto& project) { return project.GetMultiPointFieldRequests().at(0); });
}

TEST(NearZonePoint, HasACellAndAType) {
    NearZonePoint point, typed;
    point.Point({1, 2, 3});
    typed.Point({1, 2, 3});
    EXPECT_EQ(point, typed);
    typed.Type(4);
    EXPECT_NE(point, typed);
    EXPECT_EQ(typed.Type() * 1000 + typed.X() * 100 + typed.Y() * 10 + typed.Z(), 4123);
}

TEST(TemperatureRise, NamesFilesAndOmitsUnnamedValues) {
    for (const auto& [plane, prefix] : {std::pair(0, ".xy"), {1, ".yz"}, {2, ".zx"}, {5, ".zx"}}) {
        Project project;
        auto arguments = noTemperatureRise;
        std::get<6>(arguments) = 3;
        std::get<7>(arguments) = static_cast<TemperatureRiseRequest::Plane>(plane);
        auto* request = new TemperatureRiseRequest(std::make_from_tuple<TemperatureRiseRequest>(arguments));
        project.setTemperatureRiseRequest(request);
        EXPECT_EQ(request->getTemperatureDifferenceFileNameExtensionPrefix(), prefix);
        EXPECT_EQ(request->getTemperatureDifferenceFileNameExtension(), ".trise");
        EXPECT_EQ(request->getTemperatureStatisticsFileNameExtension(), ".temperature.statistics");
        EXPECT_EQ(requestsOf(project).contains("plane_type"), plane < 3);
        EXPECT_FALSE(requestsOf(project).contains("steady_state_type"));
        EXPECT_FALSE(requestsOf(project).contains("filename"));
    }
}

}  // namespace
}  // namespace quarn::test
