#include "quarn/MultiPointResultReader.h"

#include <algorithm>

#include "results/BlockReading.h"

namespace quarn {

namespace {

static_assert(sizeof(ivec3) == 12, "a point in memory is one of the geometry file");

}  // namespace

bool MultiPointResultReader::beginResultReading(const QString& baseFileName) {
    closeComponents();
    setBaseFileName(baseFileName);
    return readInfo();
}

template <class Item>
bool MultiPointResultReader::readList(const QString& fileName, std::vector<Item>& items) const {
    items.clear();
    DataFileReader reader;
    return openForReading(reader, fileName) && records::readBlock(reader, all, items);
}

bool MultiPointResultReader::readTimesteps(std::vector<float>& times) const {
    return readList(getTimestepsFileName(), times);
}

bool MultiPointResultReader::readFrequencies(std::vector<float>& frequencies) const {
    return readList(getFrequenciesFileName(), frequencies);
}

bool MultiPointResultReader::readGeometry(std::vector<ivec3>& points) const {
    return readList(getGeometryFileName(), points);
}

bool MultiPointResultReader::beginTimestep(int index) {
    m_timestep = index;
    return true;
}

bool MultiPointResultReader::beginFrequency(int index) {
    m_frequency = index;
    return true;
}

template <class Group, class File>
bool MultiPointResultReader::openFile(Group group, File file, int index) {
    return collects(group) && openForReading(m_components[file], getComponentFileName(group, file, index));
}

template <class Group, class Files>
bool MultiPointResultReader::openFiles(Group group, const Files& files, int index) {
    if (!collects(group)) return false;
    closeComponents();
    return std::all_of(files.begin(), files.end(), [&](auto file) { return openFile(group, file, index); });
}

bool MultiPointResultReader::beginTransient(TransientGroup group) { return openFiles(group, components, m_timestep); }

bool MultiPointResultReader::beginTransient(TransientGroup group, Component component) {
    return openFile(group, component, m_timestep);
}

bool MultiPointResultReader::beginSteady(SteadyGroup group) { return openFiles(group, parts, m_frequency); }

bool MultiPointResultReader::beginSteady(SteadyGroup group, Part part) { return openFile(group, part, m_frequency); }

bool MultiPointResultReader::readTransient(float& x, float& y, float& z) {
    float values[components.size()];
    if (!readEach(values, components.size())) return false;
    x = values[X];
    y = values[Y];
    z = values[Z];
    return true;
}

bool MultiPointResultReader::readSteady(std::complex<float>& x, std::complex<float>& y, std::complex<float>& z) {
    float values[parts.size()];
    if (!readEach(values, parts.size())) return false;
    x = {values[Xr], values[Xi]};
    y = {values[Yr], values[Yi]};
    z = {values[Zr], values[Zi]};
    return true;
}

// Reads from all of the first `count` files or from none, so that they stay at the same point.
bool MultiPointResultReader::readEach(float* values, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        if (!m_components[i].isOpen()) return false;
    }
    for (std::size_t i = 0; i < count; ++i) {
        if (m_components[i].read(values[i])) continue;
        while (i-- > 0) m_components[i].skip(-static_cast<int>(sizeof(float)));
        return false;
    }
    return true;
}

bool MultiPointResultReader::readBlock(std::size_t component, std::vector<float>& values, std::size_t count) {
    return m_components[component].isOpen() && records::readBlock(m_components[component], count, values);
}

bool MultiPointResultReader::skipValues(int count) {
    bool anyOpen = false;
    for (DataFileReader& component : m_components) {
        if (!component.isOpen()) continue;
        anyOpen = true;
        if (!component.seek(component.tell() + static_cast<long>(sizeof(float)) * count)) return false;
    }
    return anyOpen;
}

bool MultiPointResultReader::closeComponents() {
    for (DataFileReader& component : m_components) component.close();
    return true;
}

}  // namespace quarn
