#pragma once

#include <QString>
#include <array>
#include <complex>
#include <vector>

#include "quarn/DataFileWriter.h"
#include "quarn/Export.h"
#include "quarn/MultiPointResult.h"

namespace quarn {

class GridIndexBoxes;

/// Writes the files of a multi-point result, for the groups that it was constructed with:
///
///     beginResultWriting
///       for each time step:  beginTimestep; for each group: beginTransient.., writeTransient for each point,
///                            endTransient; endTimestep
///       for each frequency:  beginFrequency; for each group: beginSteady.., writeSteady for each point, endSteady;
///                            endFrequency
///     endResultWriting
///
/// Points come in the order of their numbers in the index boxes. A group, time step or frequency that begins before the
/// previous one was ended replaces it. Each operation returns false when a file could not be opened or written. Data
/// lost from a group that was not ended is reported by the next begin of a group of the same result, never by
/// beginResultWriting.
class QUARN_EXPORT MultiPointResultWriter : public MultiPointResult {
public:
    using MultiPointResult::MultiPointResult;

    /// Writes the info and the geometry file and leaves the lists of time steps and frequencies open.
    bool beginResultWriting(const QString& baseFileName, const GridIndexBoxes& boxes);

    /// Writes the geometry file, as beginResultWriting does. False unless there are as many points as the result has.
    bool writeGeometry(const GridIndexBoxes& boxes) const;

    /// Moves on to the next time step. When the call returns, `time`, in seconds, is in the list for other processes to
    /// read.
    bool beginTimestep(float time);

    /// Begins the last time step again, with another time; begins the first one if there is none yet.
    bool restartTimestep(float time);

    /// @name Beginning a group at the current time step
    /// Opens the files of the three components. False when the group is not one of the result.
    /// @{
    bool beginTransientScatteredE() { return beginTransient(TransientScatteredE); }
    bool beginTransientTotalE() { return beginTransient(TransientTotalE); }
    bool beginTransientScatteredH() { return beginTransient(TransientScatteredH); }
    bool beginTransientTotalH() { return beginTransient(TransientTotalH); }
    bool beginTransientScatteredB() { return beginTransient(TransientScatteredB); }
    bool beginTransientTotalB() { return beginTransient(TransientTotalB); }
    bool beginTransientJ() { return beginTransient(TransientJ); }
    bool beginTransient(TransientGroup group);
    /// @}

    /// False, with nothing written, when no group was begun.
    bool writeTransient(float x, float y, float z);

    /// False when not all three files had been open or could be completed.
    bool endTransient();
    bool endTimestep();

    /// Moves on to the next frequency, in Hz; it is in the list when the call returns.
    bool beginFrequency(float frequency);

    /// Moves to frequency number `index` and adds all of `frequencies` to the list, but as doubles. Readers read the
    /// list as floats, so they do not get these frequencies back from such a file.
    bool beginFrequencyAtIndex(std::vector<double> frequencies, int index);

    /// @name Beginning a group at the current frequency
    /// Opens the files of the real and imaginary parts of the three components. False when the group is not one of the
    /// result.
    /// @{
    bool beginSteadyTotalE() { return beginSteady(SteadyTotalE); }
    bool beginSteadyTotalH() { return beginSteady(SteadyTotalH); }
    bool beginSteadyTotalB() { return beginSteady(SteadyTotalB); }
    bool beginSteadyJ() { return beginSteady(SteadyJ); }
    bool beginSteady(SteadyGroup group);
    /// @}

    /// False, with nothing written, when no group was begun.
    bool writeSteady(const std::complex<float>& x, const std::complex<float>& y, const std::complex<float>& z);

    /// False when not all six files had been open or could be completed.
    bool endSteady();
    bool endFrequency();

    bool endResultWriting();

private:
    template <class Group, class Files>
    bool openFiles(Group group, const Files& files, int index);
    bool areOpen(std::size_t count) const;
    bool closeComponents(std::size_t count);
    void abandonComponents();

    DataFileWriter m_timesteps;
    DataFileWriter m_frequencies;
    std::array<DataFileWriter, 6> m_components;  ///< in the order of Component or of Part
    bool m_nothingLost = true;
    int m_timestep = -1;
    int m_frequency = -1;
};

}  // namespace quarn
