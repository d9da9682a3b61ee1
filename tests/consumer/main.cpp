// A program that uses the installed package: it must compile against the installed headers without a warning, link,
// start, and print the version of the package. Materials of any two classes can be compared in each language standard.
#include <algorithm>
#include <cstdio>
#include <list>

#include <quarn/quarn.h>

int main() {
    quarn::v6ProjectFile project;
    const std::list<quarn::ElectricThinWire> wires{quarn::ElectricThinWire("thin", 1.0F)};
    const bool isFound = std::find(wires.begin(), wires.end(), quarn::ElectricThinWire("thin", 1.0F)) != wires.end();
    const quarn::Material& thin = wires.front();
    if (!isFound || thin != wires.front() || wires.front() == quarn::MagneticFreeSpace("thin")) return 1;
    std::puts(QUARN_VERSION);
}
