// Compares far fields computed from the near fields of sources on the box with the closed form: pattern, absolute level
// and phase. They differ only by the discretization.

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

// Fine cells in the middle and coarser ones outside, more so towards higher coordinates, so that the centre of the box
// is not in its middle.
Grid gradedGrid(float size, float length) {
    const auto cells = static_cast<std::int32_t>(std::lround(length / size));
    const Grid::Runs runs{{0, 1.5F * size}, {cells / 4, size}, {cells / 2, 2 * size}};
    const auto count = static_cast<std::uint32_t>(cells);
    Grid grid;
    EXPECT_TRUE(grid.initialize(count, count + 4, count, 1, -2, 0, runs, {{0, size}}, runs, true));
    return grid;
}

// The position relative to the middle of the grid.
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

class FarFieldOfSource : public testing::TestWithParam<SourceRow> {
protected:
    double deviationForCells(float size) const {
        const ExactRun run(GetParam().grid(size, 1.6F), openBoundaries());
        return deviation(run, *GetParam().source(run));
    }
};

// The excess of the field in the middle of a cell over its mean, for a wave along the face: 1 - sin(a) / a, where a is
// half the phase across the cell.
double boundForCells(double size) { return std::pow(waveNumber * size, 2) / 24.0; }

// Halving the cell size divides the deviation by four.
TEST_P(FarFieldOfSource, ConvergesToTheClosedFormWithFinerCells) {
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
    {"AnElectricDipoleAlongX", evenGrid, centred<ElectricDipole, 0>},
    {"AnElectricDipoleAlongY", evenGrid, centred<ElectricDipole, 1>},
    {"AnElectricDipoleAlongZ", evenGrid, centred<ElectricDipole, 2>},
    {"ASmallLoopAroundX", evenGrid, centred<MagneticDipole, 0>},
    {"ASmallLoopAroundZ", evenGrid, centred<MagneticDipole, 2>},
    {"AnElectricDipoleOffCentre", evenGrid, offCentre},
    {"AnElectricDipoleOffCentreOnGradedCells", gradedGrid, offCentre},
    {"AHalfWaveDipole", evenGrid, halfWave},
    {"AnObliqueWire", evenGrid, obliqueWire},
    {"APhasedArray", evenGrid, phasedArray},
    {"APhasedArrayOnGradedCells", gradedGrid, phasedArray},
};
INSTANTIATE_TEST_SUITE_P(, FarFieldOfSource, testing::ValuesIn(sourceRows), rowName<SourceRow>);

// Image theory: the image of an electric dipole has its component along the plane reversed, that of a magnetic dipole
// its component across the plane.
class FarFieldOverPlane : public testing::TestWithParam<FarZoneBox::Face> {
protected:
    std::size_t axis = GetParam() % 3;
    double upwards = GetParam() < FarZoneBox::XUpper ? 1.0 : -1.0;

    /// The run determines the position of the plane; the source is at a height above it.
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

TEST_P(FarFieldOverPlane, FollowsImageTheoryAndIsZeroBelow) {
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

TEST(FarField, CarriesThePowerThatFlowsThroughTheBox) {
    const ExactRun run(evenGrid(0.05F, 1.6F), openBoundaries());
    const auto source = phasedArray(run);
    const FieldsOnSSFarZoneBox fields = run.fieldsOf(*source, frequency);

    double flux = 0.0;
    for (std::uint32_t face = 0; face < 6; ++face) {
        const auto& [e1, e2, h1, h2] = fields.getFields(static_cast<FarZoneBox::Face>(face));
        const double outward = (face < FarZoneBox::XUpper ? -1.0 : 1.0) * (face % 3 == 1 ? -1.0 : 1.0);
        for (std::size_t i = 0; i < e1.size(); ++i) {
            const std::complex<float> poynting = e1[i] * std::conj(h2[i]) - e2[i] * std::conj(h1[i]);
            flux += outward * 0.5 * static_cast<double>(poynting.real()) * 0.05 * 0.05;
        }
    }

    // The middle of each patch of 2 by 2 degrees.
    constexpr int step = 2;
    double radiated = 0.0;
    std::vector<FarZoneRequest::Angle> angles;
    for (int theta = step / 2; theta < 180; theta += step) {
        for (int phi = 0; phi < 360; phi += step) {
            angles.emplace_back(static_cast<float>(theta * pi / 180), static_cast<float>(phi * pi / 180));
        }
    }
    for (const auto& record : patternOf(fields, frequency, angles)) {
        const double density = static_cast<double>(std::norm(record.eTheta) + std::norm(record.ePhi)) /
                               (2.0 * constants::freeSpaceImpedance);
        radiated += density * std::sin(static_cast<double>(record.theta)) * std::pow(step * pi / 180, 2);
    }
    EXPECT_NEAR(radiated, flux, 0.01 * flux);
}

}  // namespace
}  // namespace quarn::test
