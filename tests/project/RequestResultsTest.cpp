#include <gmock/gmock.h>

#include "TestSupport.h"
#include "quarn/quarn.h"

namespace quarn::test {
namespace {

using B = BoundaryConditions;

/// A project that has what a save needs.
class Project : public OwningProject {
public:
    Project() { setBoundaryConditions(new B(B::CPML, B::CPML, B::CPML, B::CPML, B::CPML, B::CPML, 8)); }
};

// What a project saves within its results block, and a file with such a block, in short form.
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
// One of each request, in the order and with the lines that are written.
const QString everyRequest =
    "MultiFieldIndexedPoint{ Definition{ File point 1; MinTimestep 1; MaxTimestep 2; DeltaTimestep 3; TotalE; ScatteredE; "
    "TotalH; ScatteredH; TotalB; ScatteredB; J; } XIndex -4; YIndex 5; ZIndex 2147483647; } "
    "MultiFieldInterpolatedPoint{ Definition{ File ; MinTimestep -1; MaxTimestep -1; DeltaTimestep -1; ScatteredH; } "
    "XPosition 0.10000000149011612; YPosition -2; ZPosition 3.5; } "
    "MultiPointFieldRequest{ MinTimestep 1; MaxTimestep 2; DeltaTimestep 3; File Größe; TransientTotalE; "
    "TransientTotalH; TransientTotalB; TransientJ; TransientScatteredE; TransientScatteredH; TransientScatteredB; "
    "SteadyTotalE; SteadyTotalH; SteadyTotalB; SteadyJ; Snapped; GridBoxes 2 0 1 2 3 4 5 10 10 10 10 10 11; "
    "PointsToRemoveFromBoxes 2 0 1 3 10 10 11; AdditionalPoints 2 9 8 7 -1 -1 -1; } "
    "RawSARPlanes{ Plane ZX 4; Plane  5; Plane YZ 4294967295; Plane XY 0; } "
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

void describeRequests(Project& project) {
    using Q = QString;
    project.GetNearZoneMultiFieldIndexedPoints() = {
        {ivec3(-4, 5, 2147483647), true, true, true, true, true, true, true, 1, 2, 3, Q("point 1")}};
    project.GetNearZoneMultiFieldInterpolatedPoints() = {
        {0.1F, -2, 3.5F, false, false, true, false, false, false, false, -1, -1, -1, Q()}};
    MultiPointFieldRequest points;
    points.collectTransientTotalE = points.collectTransientTotalH = points.collectTransientTotalB = true;
    points.collectTransientScatteredE = points.collectTransientScatteredH = points.collectTransientScatteredB = true;
    points.collectSteadyTotalE = points.collectSteadyTotalH = points.collectSteadyTotalB = true;
    points.collectTransientJ = points.collectSteadyJ = points.snapped = true;
    points.minTimestep = 1;
    points.maxTimestep = 2;
    points.deltaTimestep = 3;
    points.outputFile = "Größe";
    points.gridIndexBoxes = GridIndexBoxes({{{0, 1, 2}, {3, 4, 5}}, {{10, 10, 10}, {10, 10, 11}}},
                                           {{0, 1, 3}, {10, 10, 11}, {99, 9, 9}},
                                           {{9, 8, 7}, {-1, -1, -1}});
    project.GetMultiPointFieldRequests() = {points};
    project.getSARPlaneRequests() = {new SARPlane(SARPlane::ZX, 4),
                                     nullptr,
                                     new SARPlane(static_cast<SARPlane::Plane>(3), 5),
                                     new SARPlane(SARPlane::YZ, 4294967295),
                                     new SARPlane};
    const PhysicalParameters p(1, 2, 3, 4, 5);
    project.setTemperatureRiseRequest(new TemperatureRiseRequest(true,
                                                                 true,
                                                                 true,
                                                                 0.25F,
                                                                 0.5F,
                                                                 9,
                                                                 0,
                                                                 TemperatureRiseRequest::ZX,
                                                                 1,
                                                                 2,
                                                                 3,
                                                                 4,
                                                                 5,
                                                                 6,
                                                                 true,
                                                                 300,
                                                                 p,
                                                                 p,
                                                                 310,
                                                                 p,
                                                                 p,
                                                                 Q("before"),
                                                                 Q("after all"),
                                                                 true,
                                                                 7,
                                                                 8));
    project.setSARAveragingRequest(new SARAveragingRequest(
        true, true, true, 1, 2, 3, 4, 5, 6, true, -20, {0, 255}, true, true, true, true, true, true, Q("my sar")));
    project.getSteadyStateFarZoneRequests() = {{{{1, 2}}, Q("a.fz")}, {}};
    project.getTransientFarZoneRequests() = {{{}, Q("b")}};
    project.getHACRequests() = {new HACRequest{{1, 2, 3}, {4, 0.1, 6}, {7, 8, 9}, {0, 1, 2}}, nullptr};
    project.setSteadyStateStorageMethod(ProjectFile::HardDisk);
    project.setSaveFieldsOnFarZoneBoxForPostProcessing(false);
}

TEST(RequestResults, every_request_is_written_in_order_and_read_back) {
    Project described, loaded;
    describeRequests(described);
    described.getSteadyStateFrequencies() = {{1, "F"}};
    // A plane that has no name cannot be read; one with an unknown name reads as XY.
    const QString text = everyRequest + frequencies + hac;
    EXPECT_EQ(requestsOf(described), expanded(text));
    load(loaded, fileWith(QString(text).replace("Plane  5;", "Plane XZ 5;")));
    EXPECT_EQ(requestsOf(loaded), expanded(QString(text).replace("Plane  5;", "Plane XY 5;")));

    EXPECT_EQ(loaded.GetNearZoneMultiFieldIndexedPoints(), described.GetNearZoneMultiFieldIndexedPoints());
    EXPECT_EQ(loaded.GetNearZoneMultiFieldInterpolatedPoints(), described.GetNearZoneMultiFieldInterpolatedPoints());
    EXPECT_EQ(loaded.GetMultiPointFieldRequests(), described.GetMultiPointFieldRequests());
    EXPECT_EQ(*loaded.getTemperatureRiseRequest(), *described.getTemperatureRiseRequest());
    EXPECT_EQ(*loaded.getSARAveragingRequest(), *described.getSARAveragingRequest());
    EXPECT_EQ(loaded.getTransientFarZoneRequests(), described.getTransientFarZoneRequests());
    EXPECT_EQ(*loaded.getHACRequests().at(0), *described.getHACRequests().at(0));
}

TEST(RequestResults, copies_share_planes_and_measurements_only) {
    Project source;
    describeRequests(source);
    v6ProjectFile copy(source), assigned;
    EXPECT_EQ(requestsOf(copy), expanded(everyRequest)) << "HAC requests need frequencies";
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

TEST(RequestResults, load_adds_to_lists_and_forgets_the_averaging_request) {
    Project project;
    describeRequests(project);
    const std::unique_ptr<const SARAveragingRequest> averaging(project.getSARAveragingRequest());
    const auto* const temperature = project.getTemperatureRiseRequest();
    load(project,
         fileWith("SARAveraging{ } RawSARPlanes{ Plane XY 1; } HACRequest{ } FarZoneRequests{ Transient{ } }"
                  "MultiPointFieldRequest{ } MultiFieldIndexedPoint{ } TemperatureRiseRequest{ } ") +
             "begin_<RequestResults> \nend_<RequestResults>\n");
    EXPECT_NE(project.getSARAveragingRequest(), averaging.get());
    EXPECT_EQ(averaging->getOutputAveragedFileName(), "my sar");
    EXPECT_NE(project.getTemperatureRiseRequest(), temperature);
    delete temperature;
    EXPECT_EQ(project.getSARPlaneRequests().size(), 6U);
    EXPECT_EQ(project.getHACRequests().size(), 3U);
    EXPECT_EQ(*project.getHACRequests().back(), HACRequest());
    EXPECT_EQ(project.getTransientFarZoneRequests().size(), 2U);
    EXPECT_EQ(project.GetMultiPointFieldRequests().size(), 2U);
    EXPECT_EQ(project.GetNearZoneMultiFieldIndexedPoints().size(), 2U);

    load(project, fileWith("SARAveraging{ } } RequestResults{ "));
    EXPECT_EQ(project.getSARAveragingRequest(), nullptr) << "the second block asks for none";
}

struct Row {
    const char* name;
    QString read, written;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

class RequestsRead : public testing::TestWithParam<Row> {};

TEST_P(RequestsRead, and_written) {
    onBothStreams(fileWith(GetParam().read), [](QTextStream& stream) {
        Project project;
        QStringList errors;
        EXPECT_TRUE(project.loadFromStream(stream, errors));
        EXPECT_EQ(requestsOf(project), expanded(GetParam().written));
    });
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
const Row rows[] = {
    {"grid_indices_alone", "MultiPointFieldRequest{ " + threePoints + "} ",
     multiPoint(noBoxes + "AdditionalPoints 3 1 2 3 4 5 6 7 8 9; ")},
    {"grid_indices_become_boxes", "MultiPointFieldRequest{ GridIndices 4 0 0 0 0 0 1 0 0 3 0 0 1; } ",
     multiPoint("GridBoxes 1 0 0 0 0 0 3; PointsToRemoveFromBoxes 1 0 0 2; AdditionalPoints 0; ")},
    {"grid_indices_beside_empty_lists",
     "MultiPointFieldRequest{ " + threePoints + "GridBoxes 0; AdditionalPoints -3; PointsToRemoveFromBoxes 1 1 2 3; } ",
     multiPoint(noBoxes + "AdditionalPoints 3 1 2 3 4 5 6 7 8 9; ")},
    {"boxes_before_grid_indices", "MultiPointFieldRequest{ GridIndices 1 5 5 5; GridBoxes 1 0 0 0 2 2 2; } ",
     multiPoint("GridBoxes 1 0 0 0 2 2 2; PointsToRemoveFromBoxes 0; AdditionalPoints 0; ")},
    {"additional_points_before_grid_indices", "MultiPointFieldRequest{ " + threePoints + "AdditionalPoints 1 5 5 5; } ",
     multiPoint(noBoxes + "AdditionalPoints 1 5 5 5; ")},
    {"removed_points_once_and_only_in_boxes",
     "MultiPointFieldRequest{ PointsToRemoveFromBoxes 4 0 0 1 9 9 9 0 0 0 0 0 1; GridBoxes 1 0 0 0 0 0 2; } ",
     multiPoint("GridBoxes 1 0 0 0 0 0 2; PointsToRemoveFromBoxes 2 0 0 0 0 0 1; AdditionalPoints 0; ")},
    {"lists_in_pieces_and_over_lines",
     "MultiPointFieldRequest{ AdditionalPoints 1 1 2 3; AdditionalPoints 1; 4 5; 6; AdditionalPoints 0; } ",
     multiPoint(noBoxes + "AdditionalPoints 2 1 2 3 4 5 6; ")},
    {"huge_count_as_far_as_the_line_goes", "MultiPointFieldRequest{ GridBoxes 2000000000 1 1 1 2 2 2 3 3 3 4; } ",
     multiPoint("GridBoxes 1 1 1 1 2 2 2; PointsToRemoveFromBoxes 0; AdditionalPoints 0; ")},
    {"count_beyond_integers_as_none", "MultiPointFieldRequest{ AdditionalPoints 3000000000 1 1 1; Snapped; } ",
     multiPoint(noBoxes + "AdditionalPoints 0; ", "Snapped; ")},
    {"unknown_words_and_blocks_of_points",
     "MultiPointFieldRequest{ foo Snapped; foo{ Snapped; } SteadyJ SteadyTotalE; Snapped 0; MinTimestep 7; } ",
     multiPoint(noBoxes + "AdditionalPoints 0; ", "SteadyTotalE; SteadyJ; Snapped; ", 7)},
    {"points_with_unknown_lines",
     "MultiFieldIndexedPoint{ foo XIndex 1; foo{ YIndex 1; } XPosition 2; Definition{ foo J; J{ } File  my file ; "
     "TotalB; } ZIndex 3; } MultiFieldInterpolatedPoint{ ZPosition 1e-3; XIndex 1; } ",
     "MultiFieldIndexedPoint{ Definition{ File my file; MinTimestep -1; MaxTimestep -1; DeltaTimestep -1; TotalB; } "
     "XIndex 0; YIndex 0; ZIndex 3; } MultiFieldInterpolatedPoint{ " + definition +
     "XPosition 0; YPosition 0; ZPosition 0.0010000000474974513; } "},
    {"planes_up_to_another_word", "RawSARPlanes{ Plane XZ 4; Plane zx 5; Planes YZ 6; } MultiFieldIndexedPoint{ } ",
     "RawSARPlanes{ Plane XY 4; Plane XY 5; } "},
    {"planes_up_to_a_block", "RawSARPlanes{ Plane YZ 4; foo{ } Plane ZX 1; } ", "RawSARPlanes{ Plane YZ 4; } "},
    {"far_zone_requests_among_others", "FarZoneRequests{ foo SteadyState; foo{ Transient{ } } Transient{ Angle 1 2; } } ",
     "FarZoneRequests{ Transient{ OutputFileName ; Angle 1 2; } } "},
    {"averaging_defaults_and_drops_lines",
     "SARAveraging{ foo average_one_gram; automatic_subregion_cutoff_in_db 3; materials_to_use -1; } ",
     "SARAveraging{ " + noAveraging + "} "},
    {"averaging_takes_inner_blocks_as_lines", "SARAveraging{ foo{ average_one_gram; } } ",
     "SARAveraging{ average_one_gram; " + noAveraging + "} "},
    {"averaging_materials_have_eight_bits", "SARAveraging{ materials_to_use 3 1 256 511; outputAveragedFileName  a b ; } ",
     "SARAveraging{ lower_bound  0 0 0; upper_bound  0 0 0; materials_to_use 3 1 0 255; outputAveragedFileName a b; } "},
    {"averaging_slices_by_their_normal", "SARAveraging{ save_one_gram_x_slices; save_ten_gram_z_slices; } ",
     "SARAveraging{ lower_bound  0 0 0; upper_bound  0 0 0; save_ten_gram_z_slices; save_one_gram_x_slices; "
     "outputAveragedFileName project; } "},
    {"temperature_rise_defaults", "TemperatureRiseRequest{ } ", temperatureRise(noParameters, "XY")},
    {"temperature_rise_lenient_names",
     "TemperatureRiseRequest{ plane_type XZ; steady_state_type foo; foo{ plane_type YZ; } foo plane_type YZ; "
     "begin_<PhysicalParameters> Body; density 9; end_<PhysicalParameters>; "
     "begin_<PhysicalParameters> Immersive; density 9; end_<PhysicalParameters>; initial_temperature_filename ; } ",
     temperatureRise(QString(noParameters).replace("density 0", "density 9"), "ZX")},
    {"hac_words_one_by_one", frequencies + "HACRequest{ foo Origin 1 2 3 4 U 5 6 7; V{ 1 2 3; } end_<V>; W 8 x; } ",
     frequencies + "HACRequest{ Origin 1 2 3; U 5 6 7; V 0 0 0; W 8 0 0; } "},
    {"hac_without_frequencies_is_lost", hac, ""},
    {"unknown_blocks_and_lines", "RawSARPlanes{ } foo{ MultiFieldIndexedPoint{ } } foo; MultiFieldIndexedPoint{ } ",
     "MultiFieldIndexedPoint{ " + definition + origin + "} "},
};
// clang-format on
INSTANTIATE_TEST_SUITE_P(rows, RequestsRead, testing::ValuesIn(rows), rowName<Row>);

TEST(RequestResults, boxes_that_overlap_beyond_reason_leave_their_request_out) {
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

TEST(NearZonePoints, differ_by_each_member_and_by_class) {
    const NearZoneMultiFieldIndexedPoint indexed;
    const NearZoneMultiFieldInterpolatedPoint interpolated;
    EXPECT_NE(static_cast<const NearZoneMultiFieldPoint&>(indexed), interpolated);
    using Point = NearZoneMultiFieldIndexedPoint;
    const std::function<void(Point&)> changes[] = {[](Point& p) { p.setCollectScatteredE(true); },
                                                   [](Point& p) { p.setCollectTotalE(true); },
                                                   [](Point& p) { p.setCollectScatteredH(true); },
                                                   [](Point& p) { p.setCollectTotalH(true); },
                                                   [](Point& p) { p.setCollectScatteredB(true); },
                                                   [](Point& p) { p.setCollectTotalB(true); },
                                                   [](Point& p) { p.setCollectJ(true); },
                                                   [](Point& p) { p.setMinTimestep(1); },
                                                   [](Point& p) { p.setMaxTimestep(1); },
                                                   [](Point& p) { p.setDeltaTimestep(1); },
                                                   [](Point& p) { p.setFilename("a"); },
                                                   [](Point& p) { p.setX(1); },
                                                   [](Point& p) { p.setY(1); },
                                                   [](Point& p) { p.setZ(1); }};
    std::vector<Point> points(1);
    for (const auto& change : changes) {
        Point point;
        change(point);
        EXPECT_THAT(points, testing::Not(testing::Contains(point)));
        points.push_back(point);
    }
    NearZonePoint point, typed;
    point.Point({1, 2, 3});
    typed.Point({1, 2, 3});
    EXPECT_EQ(point, typed);
    typed.Type(4);
    EXPECT_NE(point, typed);
    EXPECT_EQ(typed.Type() * 1000 + typed.X() * 100 + typed.Y() * 10 + typed.Z(), 4123);
}

TEST(TemperatureRise, names_files_and_leaves_out_what_has_no_name) {
    const PhysicalParameters none(0, 0, 0, 0, 0);
    for (const auto& [plane, prefix] : {std::pair(0, ".xy"), {1, ".yz"}, {2, ".zx"}, {5, ".zx"}}) {
        Project project;
        auto* request = new TemperatureRiseRequest(false,
                                                   false,
                                                   false,
                                                   0,
                                                   0,
                                                   0,
                                                   3,
                                                   static_cast<TemperatureRiseRequest::Plane>(plane),
                                                   0,
                                                   0,
                                                   0,
                                                   0,
                                                   0,
                                                   0,
                                                   false,
                                                   0,
                                                   none,
                                                   none,
                                                   0,
                                                   none,
                                                   none,
                                                   "",
                                                   "",
                                                   false,
                                                   0,
                                                   0);
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
