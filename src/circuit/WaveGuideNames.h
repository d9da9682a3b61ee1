#pragma once

#include "blocktext/NameTable.h"
#include "quarn/WaveGuidePort.h"

/// The names of the enumerations of waveguide ports, in text forms and in files.
namespace quarn::names {

using blocktext::operator""_key;

constexpr blocktext::NameTable<WaveGuidePort::WaveGuidePortType, 3> waveGuidePortTypes{{
    {WaveGuidePort::Modal, "modal"_key},
    {WaveGuidePort::Voltage, "voltage"_key},
    {WaveGuidePort::Current, "current"_key},
}};

constexpr blocktext::NameTable<ImpedanceType, 3> impedanceTypes{{
    {ImpedanceType::Zpi, "Zpi"_key},
    {ImpedanceType::Zpv, "Zpv"_key},
    {ImpedanceType::Zvi, "Zvi"_key},
}};

inline QLatin1String of(WaveGuidePort::WaveGuidePortType type) {
    return nameOf(waveGuidePortTypes, type, "undefined"_key);
}
inline QLatin1String of(ImpedanceType type) { return nameOf(impedanceTypes, type, "Zundefined"_key); }

}  // namespace quarn::names
