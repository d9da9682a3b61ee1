#pragma once

#include <QString>
#include <array>
#include <complex>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include "quarn/DataFileReader.h"
#include "quarn/Export.h"
#include "quarn/MultiPointResult.h"
#include "quarn/ivec3.h"

namespace quarn {

/// Reads the files of a multi-point result, in any order of time steps and frequencies:
///
///     beginResultReading
///       beginTimestep; beginTransient..; readTransient for each point, or readTransientBlock; endTimestep
///       beginFrequency; beginSteady..; readSteady for each point, or readSteadyBlock; endFrequency
///     endResultReading
///
/// A component is read value by value or, at the speed of copying a file into memory, in blocks. While the engine is
/// still writing, files may be missing or shorter than the result has points: a group whose files cannot be opened
/// cannot be begun, a read fails where a file ends, and a block holds the values present. A failed read leaves all
/// components behind the last complete value, so that the same call succeeds once the engine has written more.
class QUARN_EXPORT MultiPointResultReader : public MultiPointResult {
public:
    /// All values that the file holds.
    static constexpr std::size_t all = std::numeric_limits<std::size_t>::max();

    /// Reads the info file. False when it cannot be opened, is of another version or malformed.
    bool beginResultReading(const QString& baseFileName);
    bool endResultReading() { return closeComponents(); }

    /// @name Lists
    /// Each replaces the list by what the file holds so far. False, with an empty list, when the file cannot be opened,
    /// its version is not 0 or there is not enough memory.
    /// @{
    bool readTimesteps(std::vector<float>& times) const;
    bool readFrequencies(std::vector<float>& frequencies) const;
    bool readGeometry(std::vector<ivec3>& points) const;
    /// @}

    /// Chooses the time step that groups are begun at.
    bool beginTimestep(int index);
    bool endTransient() { return closeComponents(); }
    bool endTimestep() { return closeComponents(); }

    /// Chooses the frequency that groups are begun at.
    bool beginFrequency(int index);
    bool endSteady() { return closeComponents(); }
    bool endFrequency() { return closeComponents(); }

    /// @name Transient groups
    /// Opens the files of all three components, or of one and leaves the others as they are. False when the group is
    /// not one of the result or a file cannot be opened.
    /// @{
    bool beginTransientScatteredE() { return beginTransient(TransientScatteredE); }
    bool beginTransientScatteredEx() { return beginTransient(TransientScatteredE, X); }
    bool beginTransientScatteredEy() { return beginTransient(TransientScatteredE, Y); }
    bool beginTransientScatteredEz() { return beginTransient(TransientScatteredE, Z); }
    bool beginTransientTotalE() { return beginTransient(TransientTotalE); }
    bool beginTransientTotalEx() { return beginTransient(TransientTotalE, X); }
    bool beginTransientTotalEy() { return beginTransient(TransientTotalE, Y); }
    bool beginTransientTotalEz() { return beginTransient(TransientTotalE, Z); }
    bool beginTransientScatteredH() { return beginTransient(TransientScatteredH); }
    bool beginTransientScatteredHx() { return beginTransient(TransientScatteredH, X); }
    bool beginTransientScatteredHy() { return beginTransient(TransientScatteredH, Y); }
    bool beginTransientScatteredHz() { return beginTransient(TransientScatteredH, Z); }
    bool beginTransientTotalH() { return beginTransient(TransientTotalH); }
    bool beginTransientTotalHx() { return beginTransient(TransientTotalH, X); }
    bool beginTransientTotalHy() { return beginTransient(TransientTotalH, Y); }
    bool beginTransientTotalHz() { return beginTransient(TransientTotalH, Z); }
    bool beginTransientScatteredB() { return beginTransient(TransientScatteredB); }
    bool beginTransientScatteredBx() { return beginTransient(TransientScatteredB, X); }
    bool beginTransientScatteredBy() { return beginTransient(TransientScatteredB, Y); }
    bool beginTransientScatteredBz() { return beginTransient(TransientScatteredB, Z); }
    bool beginTransientTotalB() { return beginTransient(TransientTotalB); }
    bool beginTransientTotalBx() { return beginTransient(TransientTotalB, X); }
    bool beginTransientTotalBy() { return beginTransient(TransientTotalB, Y); }
    bool beginTransientTotalBz() { return beginTransient(TransientTotalB, Z); }
    bool beginTransientJ() { return beginTransient(TransientJ); }
    bool beginTransientJx() { return beginTransient(TransientJ, X); }
    bool beginTransientJy() { return beginTransient(TransientJ, Y); }
    bool beginTransientJz() { return beginTransient(TransientJ, Z); }
    bool beginTransient(TransientGroup group);
    bool beginTransient(TransientGroup group, Component component);
    /// @}

    /// The next value of each component. False, with nothing read, unless all three are open; false, with the values as
    /// they were, at the end of a file.
    bool readTransient(float& x, float& y, float& z);

    /// The next value of one component, which alone needs to be open.
    bool readTransientX(float& value) { return readValue(X, value); }
    bool readTransientY(float& value) { return readValue(Y, value); }
    bool readTransientZ(float& value) { return readValue(Z, value); }

    /// Replaces `values` by the next `count` values of a component, or by as many as its file holds so far. They are
    /// read as one block; memory is taken for no more than there is. False when the component is not open or there is
    /// not enough memory.
    bool readTransientBlock(Component component, std::vector<float>& values, std::size_t count = all) {
        return readBlock(static_cast<std::size_t>(component), values, count);
    }

    /// Moves forward by `count` values in each open file, or back when negative; behind the end of a file no value is
    /// found. False when no file is open or the position would lie before the start of a file.
    bool skipTransient(int count) { return skipValues(count); }

    /// @name Steady groups
    /// Opens the files of all six parts, or of one and leaves the others as they are. False when the group is not one
    /// of the result or a file cannot be opened.
    /// @{
    bool beginSteadyTotalE() { return beginSteady(SteadyTotalE); }
    bool beginSteadyTotalExr() { return beginSteady(SteadyTotalE, Xr); }
    bool beginSteadyTotalExi() { return beginSteady(SteadyTotalE, Xi); }
    bool beginSteadyTotalEyr() { return beginSteady(SteadyTotalE, Yr); }
    bool beginSteadyTotalEyi() { return beginSteady(SteadyTotalE, Yi); }
    bool beginSteadyTotalEzr() { return beginSteady(SteadyTotalE, Zr); }
    bool beginSteadyTotalEzi() { return beginSteady(SteadyTotalE, Zi); }
    bool beginSteadyTotalH() { return beginSteady(SteadyTotalH); }
    bool beginSteadyTotalHxr() { return beginSteady(SteadyTotalH, Xr); }
    bool beginSteadyTotalHxi() { return beginSteady(SteadyTotalH, Xi); }
    bool beginSteadyTotalHyr() { return beginSteady(SteadyTotalH, Yr); }
    bool beginSteadyTotalHyi() { return beginSteady(SteadyTotalH, Yi); }
    bool beginSteadyTotalHzr() { return beginSteady(SteadyTotalH, Zr); }
    bool beginSteadyTotalHzi() { return beginSteady(SteadyTotalH, Zi); }
    bool beginSteadyTotalB() { return beginSteady(SteadyTotalB); }
    bool beginSteadyTotalBxr() { return beginSteady(SteadyTotalB, Xr); }
    bool beginSteadyTotalBxi() { return beginSteady(SteadyTotalB, Xi); }
    bool beginSteadyTotalByr() { return beginSteady(SteadyTotalB, Yr); }
    bool beginSteadyTotalByi() { return beginSteady(SteadyTotalB, Yi); }
    bool beginSteadyTotalBzr() { return beginSteady(SteadyTotalB, Zr); }
    bool beginSteadyTotalBzi() { return beginSteady(SteadyTotalB, Zi); }
    bool beginSteadyJ() { return beginSteady(SteadyJ); }
    bool beginSteadyJxr() { return beginSteady(SteadyJ, Xr); }
    bool beginSteadyJxi() { return beginSteady(SteadyJ, Xi); }
    bool beginSteadyJyr() { return beginSteady(SteadyJ, Yr); }
    bool beginSteadyJyi() { return beginSteady(SteadyJ, Yi); }
    bool beginSteadyJzr() { return beginSteady(SteadyJ, Zr); }
    bool beginSteadyJzi() { return beginSteady(SteadyJ, Zi); }
    bool beginSteady(SteadyGroup group);
    bool beginSteady(SteadyGroup group, Part part);
    /// @}

    /// The next value of each component. False, with nothing read, unless all six parts are open; false, with the
    /// values as they were, at the end of a file.
    bool readSteady(std::complex<float>& x, std::complex<float>& y, std::complex<float>& z);

    /// The next value of one part, which alone needs to be open.
    bool readSteadyXr(float& value) { return readValue(Xr, value); }
    bool readSteadyXi(float& value) { return readValue(Xi, value); }
    bool readSteadyYr(float& value) { return readValue(Yr, value); }
    bool readSteadyYi(float& value) { return readValue(Yi, value); }
    bool readSteadyZr(float& value) { return readValue(Zr, value); }
    bool readSteadyZi(float& value) { return readValue(Zi, value); }

    /// Like readTransientBlock, for one part.
    bool readSteadyBlock(Part part, std::vector<float>& values, std::size_t count = all) {
        return readBlock(static_cast<std::size_t>(part), values, count);
    }

    /// Like skipTransient, for each open part.
    bool skipSteady(int count) { return skipValues(count); }

private:
    template <class Item>
    bool readList(const QString& fileName, std::vector<Item>& items) const;
    template <class Group, class File>
    bool openFile(Group group, File file, int index);
    template <class Group, class Files>
    bool openFiles(Group group, const Files& files, int index);
    bool readEach(float* values, std::size_t count);
    bool readValue(std::size_t component, float& value) {
        return m_components[component].isOpen() && m_components[component].read(value);
    }
    bool readBlock(std::size_t component, std::vector<float>& values, std::size_t count);
    bool skipValues(int count);
    bool closeComponents();

    std::array<DataFileReader, 6> m_components;  ///< in the order of Component or of Part
    int m_timestep = -1;
    int m_frequency = -1;
};

}  // namespace quarn
