#pragma once

#include "results/FarZoneLanes.h"
#include "results/FarZoneSummation.h"
#include "results/FarZoneWindow.h"

namespace quarn::farzone {

/// The sums over the cells of all faces for many directions: the cost of a direction does not depend on the cells.
///
/// As a function of the direction's in-plane components a face's sum is band-limited, since the face is finite. It is
/// sampled once on a uniform grid of twice the Nyquist density, by one product with a table of phasors for each
/// in-plane axis; each direction is then interpolated from ten by ten samples with a Kaiser-Bessel window. What the
/// window does to a cell depends only on where the cell lies on its axis, so that the tables undo it beforehand (a
/// nonuniform fast Fourier transform of type 2 without its FFT, as the grids are small: Fourmont, J. Fourier Anal.
/// Appl. 9, 2003; Barnett, Magland and af Klinteberg, SIAM J. Sci. Comput. 41, 2019).
///
/// The interpolation's error is some exp(-pi taps sqrt(1 - 1/oversampling)) of the sum of all samples' magnitudes. Ten
/// taps keep it below 1e-7 of a face's largest sum, whatever the cells and the size of the box, even where the samples
/// cancel to a hundredth: it is 1e-9 where they do not.
class Spectrum : public FaceSummation {
public:
    /// The surface must outlive the sampling. The wave number is above 0.
    Spectrum(const Surface& surface, double waveNumber);

    /// Takes the samples.
    bool prepare(Progress& progress) override;
    bool evaluate(const Vector* directions, std::size_t count, FaceSums* sums, Progress& progress) override;

    /// Estimated time in ns of taking the samples, and of looking one direction up; bytes that the samples take.
    static double samplingCost(const Surface& surface, double waveNumber);
    static double lookupCost();
    static double memory(const Surface& surface, double waveNumber);

private:
    /// The uniform grid in the direction's component along one axis: samples stand at multiples of the spacing, from
    /// -last to last.
    struct Sampling {
        double centre;  ///< middle of the cells times the wave number; the sampled phase refers to it
        double spacing;
        std::size_t last;

        std::size_t samples() const { return 2 * last + 1; }
    };

    /// The samples of an axis that a direction is interpolated from.
    struct Neighbours {
        std::size_t first;
        Window::Weights weights;
    };

    /// The components of the lower and of the upper face.
    static constexpr std::size_t sampleSize = 2 * numLanes;
    using Sample = std::array<double, sampleSize>;

    bool fillPhasors(std::size_t axis, Progress& progress);
    bool sampleRows(std::size_t normal, Side side, Progress& progress);
    bool sampleColumns(std::size_t normal, Side side, Progress& progress);
    FaceSums sumsAt(const Vector& direction) const;
    Neighbours neighboursOf(std::size_t axis, double component) const;
    Sample interpolated(std::size_t normal, const Neighbours& a, const Neighbours& b) const;

    const Surface& m_surface;
    double m_waveNumber;
    Window m_window;
    std::array<Sampling, numAxes> m_samplings;
    std::array<std::vector<Phasor>, numAxes> m_phasors;  ///< for samples 0 to last, cell by cell
    std::array<std::vector<double>, numAxes> m_samples;  ///< by normal; a row follows the lower in-plane axis
    std::vector<Lanes> m_row;
    std::vector<Lanes> m_columns;  ///< a face sampled along its lower in-plane axis only
};

}  // namespace quarn::farzone
