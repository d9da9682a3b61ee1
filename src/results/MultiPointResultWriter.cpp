#include "quarn/MultiPointResultWriter.h"

#include <algorithm>
#include <utility>

#include "quarn/GridIndexBoxes.h"

namespace quarn {

namespace {

constexpr int bytesOfTime = 4;

}  // namespace

template <class Group, class Files>
bool MultiPointResultWriter::openFiles(Group group, const Files& files, int index) {
    if (!collects(group)) return false;
    abandonComponents();
    if (!std::exchange(m_nothingLost, true)) return false;
    return std::all_of(files.begin(), files.end(), [&](auto file) {
        return openForWriting(m_components[file], getComponentFileName(group, file, index));
    });
}

bool MultiPointResultWriter::beginResultWriting(const QString& baseFileName, const GridIndexBoxes& boxes) {
    endResultWriting();
    m_nothingLost = true;
    setBaseFileName(baseFileName);
    setNumberOfPoints(boxes.getNumPoints());
    m_timestep = -1;
    m_frequency = -1;
    if (!writeInfo() || !writeGeometry(boxes) || !openForWriting(m_timesteps, getTimestepsFileName())) return false;
    if (openForWriting(m_frequencies, getFrequenciesFileName())) return true;
    m_timesteps.close();
    return false;
}

bool MultiPointResultWriter::writeGeometry(const GridIndexBoxes& boxes) const {
    const int numPoints = getNumberOfPoints();
    DataFileWriter writer;
    if (boxes.getNumPoints() != numPoints || !openForWriting(writer, getGeometryFileName())) return false;
    for (int i = 0; i < numPoints; ++i) {
        const ivec3 point = boxes.getPoint(i);
        if (!writer.write(point.x) || !writer.write(point.y) || !writer.write(point.z)) return false;
    }
    return writer.close();
}

bool MultiPointResultWriter::beginTimestep(float time) {
    ++m_timestep;
    return m_timesteps.write(time) && m_timesteps.flush();
}

bool MultiPointResultWriter::restartTimestep(float time) {
    if (m_timestep >= 0) {
        if (!m_timesteps.skip(-bytesOfTime)) return false;
        --m_timestep;
    }
    return beginTimestep(time);
}

bool MultiPointResultWriter::beginTransient(TransientGroup group) { return openFiles(group, components, m_timestep); }

bool MultiPointResultWriter::writeTransient(float x, float y, float z) {
    return areOpen(components.size()) && m_components[X].write(x) && m_components[Y].write(y) &&
           m_components[Z].write(z);
}

bool MultiPointResultWriter::endTransient() { return closeComponents(components.size()); }

bool MultiPointResultWriter::endTimestep() {
    abandonComponents();
    return true;
}

bool MultiPointResultWriter::beginFrequency(float frequency) {
    ++m_frequency;
    return m_frequencies.write(frequency) && m_frequencies.flush();
}

bool MultiPointResultWriter::beginFrequencyAtIndex(std::vector<double> frequencies, int index) {
    m_frequency = index;
    return std::all_of(frequencies.begin(), frequencies.end(), [&](double frequency) {
        return m_frequencies.write(frequency) && m_frequencies.flush();
    });
}

bool MultiPointResultWriter::beginSteady(SteadyGroup group) { return openFiles(group, parts, m_frequency); }

bool MultiPointResultWriter::writeSteady(const std::complex<float>& x, const std::complex<float>& y,
                                         const std::complex<float>& z) {
    return areOpen(parts.size()) && m_components[Xr].write(x.real()) && m_components[Xi].write(x.imag()) &&
           m_components[Yr].write(y.real()) && m_components[Yi].write(y.imag()) && m_components[Zr].write(z.real()) &&
           m_components[Zi].write(z.imag());
}

bool MultiPointResultWriter::endSteady() { return closeComponents(parts.size()); }

bool MultiPointResultWriter::endFrequency() {
    abandonComponents();
    return true;
}

bool MultiPointResultWriter::endResultWriting() {
    abandonComponents();
    m_timesteps.close();
    m_frequencies.close();
    return true;
}

bool MultiPointResultWriter::areOpen(std::size_t count) const {
    return std::all_of(m_components.begin(), m_components.begin() + static_cast<std::ptrdiff_t>(count), [](auto& file) {
        return file.isOpen();
    });
}

bool MultiPointResultWriter::closeComponents(std::size_t count) {
    bool complete = true;
    for (std::size_t i = 0; i < count; ++i) complete &= m_components[i].close();
    return complete;
}

// Lost data is reported when the next group of the result is begun.
void MultiPointResultWriter::abandonComponents() {
    for (DataFileWriter& file : m_components) {
        if (file.isOpen()) m_nothingLost &= file.close();
    }
}

}  // namespace quarn
