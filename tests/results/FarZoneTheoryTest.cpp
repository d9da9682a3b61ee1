// Far fields of sources that are known in closed form, from their near fields on the box: pattern, absolute level and
// phase. Only the size of the cells keeps the two apart.

#include <gmock/gmock.h>

#include "TestSupport.h"
#include "results/FarZoneFields.h"

namespace quarn::test {
namespace {

using reference::Complex;
using reference::ComplexVector;
using reference::ElectricDipole;
using reference::MagneticDipole;
using reference::Sources;
using reference::Vector;
using reference::WireDipole;

constexpr auto frequency = static_cast<float>(constants::speedOfLight);  // a wavelength is 1 m to seven digits
const double waveNumber = reference::waveNumberOf(frequency);

Grid evenGrid(float size, float length) {
    const auto cells = static_cast<std::uint32_t>(std::lround(length / size)) + 10;  // with the margin of the box
    Grid grid;
    EXPECT_TRUE(grid.initialize(cells, cells, cells, -1, 2, 3, {{0, size}}, {{0, size}}, {{0, size}}, true));
    return grid;
}

// Fine in the middle and coarse outside, more so towards higher coordinates: the box's centre is not midway.
Grid gradedGrid(float size, float length) {
    const auto cells = static_cast<std::int32_t>(std::lround(length / size));
    const Grid::Runs runs{{0, 1.5F * size}, {cells / 4, size}, {cells / 2, 2 * size}};
    const auto count = static_cast<std::uint32_t>(cells);
    Grid grid;
    EXPECT_TRUE(grid.initialize(count, count + 4, count, 1, -2, 0, runs, {{0, size}}, runs, true));
    return grid;
}

// From the middle of the grid.
Vector at(const ExactRun& run, double x, double y, double z) {
    double low[3], high[3];
    run.grid().getUserBoundingBox(low[0], high[0], low[1], high[1], low[2], high[2]);
    return {0.5 * (low[0] + high[0]) + x, 0.5 * (low[1] + high[1]) + y, 0.5 * (low[2] + high[2]) + z};
}

template <class Dipole>
std::unique_ptr<Dipole> dipole(const Vector& position, const ComplexVector& moment) {
    return std::make_unique<Dipole>(position, moment);
}

/// The largest deviation over all directions, in units of the largest field.
double deviation(const ExactRun& run, const reference::Source& source, const FieldsOnSSFarZoneBox& fields,
                 const std::vector<FarZoneRequest::Angle>& angles) {
    double peak = 0.0;
    double largest = 0.0;
    for (const auto& record : patternOf(fields, frequency, angles)) {
        if (run.box().isAngleUnderGround(record.phi, record.theta)) {
            EXPECT_EQ(record.eTheta, std::complex<float>());
            EXPECT_EQ(record.ePhi, std::complex<float>());
            continue;
        }
        const reference::FarField expected = source.far(record.theta, record.phi, waveNumber, run.origin());
        peak = std::max({peak, std::abs(expected.theta), std::abs(expected.phi)});
        largest = std::max({largest,
                            std::abs(Complex(record.eTheta) - expected.theta),
                            std::abs(Complex(record.ePhi) - expected.phi)});
    }
    return largest / peak;
}

double deviation(const ExactRun& run, const reference::Source& source) {
    return deviation(run, source, run.fieldsOf(source, frequency), sphere(10));
}

struct SourceRow {
    const char* name;
    Grid (*grid)(float size, float length);
    std::unique_ptr<reference::Source> (*source)(const ExactRun& run);
};

void PrintTo(const SourceRow& row, std::ostream* out) { *out << row.name; }

class FarFieldOf : public testing::TestWithParam<SourceRow> {
protected:
    double deviationForCells(float size) const {
        const ExactRun run(GetParam().grid(size, 1.6F), openBoundaries());
        return deviation(run, *GetParam().source(run));
    }
};

// What the middle of a cell has more than the mean over the cell, for a wave along the face: 1 - sin(a) / a of half the
// phase across it.
double boundForCells(double size) { return std::pow(waveNumber * size, 2) / 24.0; }

// Half the size leaves a quarter of the deviation.
TEST_P(FarFieldOf, meets_the_closed_form_the_better_the_finer_the_cells) {
    const double largestRatio = GetParam().grid == gradedGrid ? 2.0 : 1.0;
    const double coarse = deviationForCells(0.05F);
    EXPECT_LT(coarse, boundForCells(largestRatio * 0.05));
    EXPECT_LT(deviationForCells(0.025F), 0.28 * coarse);
}

std::unique_ptr<reference::Source> phasedArray(const ExactRun& run) {
    auto array = std::make_unique<Sources>();
    for (int i = -1; i <= 1; ++i) {
        const Complex moment = std::polar(1.0 + 0.5 * i, 1.2 * i);
        array->add(dipole<ElectricDipole>(at(run, 0.2 * i, 0, 0.1), {0, moment, 0.5 * moment}));
        array->add(dipole<MagneticDipole>(at(run, 0, 0.2 * i, -0.1), {moment, 0, 0}));
    }
    return array;
}

template <class Dipole, int axis>
std::unique_ptr<reference::Source> centred(const ExactRun& run) {
    ComplexVector moment{};
    moment[axis] = 1.0;
    return dipole<Dipole>(at(run, 0, 0, 0), moment);
}

std::unique_ptr<reference::Source> offCentre(const ExactRun& run) {
    return dipole<ElectricDipole>(at(run, 0.15, -0.2, 0.1), {Complex(0, 1), 0.5, -2.0});
}

std::unique_ptr<reference::Source> halfWave(const ExactRun& run) {
    return std::make_unique<WireDipole>(at(run, 0.01, 0.02, 0), Vector{0, 0, 1}, 0.5, Complex(1, 0));
}

std::unique_ptr<reference::Source> obliqueWire(const ExactRun& run) {
    return std::make_unique<WireDipole>(at(run, 0, 0, 0), Vector{0.6, 0, 0.8}, 0.6, Complex(0, 1));
}

const SourceRow sourceRows[] = {
    {"an_electric_dipole_along_x", evenGrid, centred<ElectricDipole, 0>},
    {"an_electric_dipole_along_y", evenGrid, centred<ElectricDipole, 1>},
    {"an_electric_dipole_along_z", evenGrid, centred<ElectricDipole, 2>},
    {"a_small_loop_around_x", evenGrid, centred<MagneticDipole, 0>},
    {"a_small_loop_around_z", evenGrid, centred<MagneticDipole, 2>},
    {"an_electric_dipole_off_centre", evenGrid, offCentre},
    {"an_electric_dipole_off_centre_on_graded_cells", gradedGrid, offCentre},
    {"a_half_wave_dipole", evenGrid, halfWave},
    {"an_oblique_wire", evenGrid, obliqueWire},
    {"a_phased_array", evenGrid, phasedArray},
    {"a_phased_array_on_graded_cells", gradedGrid, phasedArray},
};
INSTANTIATE_TEST_SUITE_P(, FarFieldOf, testing::ValuesIn(sourceRows), rowName<SourceRow>);

// Image theory: the plane mirrors an electric dipole with its part along the plane reversed, a magnetic one with its
// part across the plane reversed.
class FarFieldOverPlane : public testing::TestWithParam<FarZoneBox::Face> {
protected:
    std::size_t axis = GetParam() % 3;
    double upwards = GetParam() < FarZoneBox::XUpper ? 1.0 : -1.0;

    /// Where the plane stands comes from the run; the source is at a height above it.
    template <class Dipole>
    void addOverPlane(Sources& sources, const ExactRun& run, const ComplexVector& moment) const {
        const double acrossSign = std::is_same_v<Dipole, ElectricDipole> ? 1.0 : -1.0;
        const double plane = run.origin()[axis];
        Vector position = at(run, 0.1, 0.05, -0.1);
        position[axis] = plane + upwards * 0.6;
        sources.add(dipole<Dipole>(position, moment));
        position[axis] = plane - upwards * 0.6;
        ComplexVector image;
        for (std::size_t i = 0; i < 3; ++i) image[i] = moment[i] * (i == axis ? acrossSign : -acrossSign);
        sources.add(dipole<Dipole>(position, image));
    }

    template <class Dipole>
    double deviationOf(const ComplexVector& moment, Grid (*grid)(float, float) = evenGrid) const {
        const ExactRun run(grid(0.05F, 1.6F), boundariesWithPlaneAt(GetParam()));
        Sources sources;
        addOverPlane<Dipole>(sources, run, moment);
        return deviation(run, sources);
    }

    ComplexVector along(std::size_t direction) const {
        ComplexVector moment{};
        moment[direction] = 1.0;
        return moment;
    }
};

TEST_P(FarFieldOverPlane, follows_image_theory_and_is_zero_below) {
    const double bound = boundForCells(0.05);
    EXPECT_LT(deviationOf<ElectricDipole>(along(axis)), bound) << "across the plane";
    EXPECT_LT(deviationOf<ElectricDipole>(along((axis + 1) % 3)), bound) << "along the plane";
    EXPECT_LT(deviationOf<ElectricDipole>(along((axis + 2) % 3)), bound) << "along the plane";
    EXPECT_LT(deviationOf<MagneticDipole>({1.0, Complex(0, 1), -0.5}), bound) << "a loop";
    EXPECT_LT(deviationOf<ElectricDipole>({1.0, Complex(0, 1), -0.5}, gradedGrid), boundForCells(0.1)) << "graded";
}

INSTANTIATE_TEST_SUITE_P(, FarFieldOverPlane,
                         testing::Values(FarZoneBox::XLower, FarZoneBox::YLower, FarZoneBox::ZLower, FarZoneBox::XUpper,
                                         FarZoneBox::YUpper, FarZoneBox::ZUpper));

}  // namespace
}  // namespace quarn::test
