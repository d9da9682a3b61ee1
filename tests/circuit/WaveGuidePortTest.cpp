#include "TestSupport.h"
#include "quarn/WaveGuidePort.h"

namespace quarn::test {
namespace {

WaveGuidePort portOf(int number, int mode) {
    WaveGuidePort port;
    port.setWaveGuideNumber(number);
    port.setWaveGuideModeNumber(mode);
    return port;
}

using Keys = std::vector<std::pair<int, int>>;

Keys keysOf(const WaveGuidePortManager& manager) {
    Keys keys;
    for (const auto* port : manager.getWaveguidePorts()) {
        keys.emplace_back(port->getWaveGuideNumber(), port->getWaveGuideModeNumber());
    }
    return keys;
}

TEST(WaveGuidePortManager, KeepsPortsSortedByWaveguideAndMode) {
    WaveGuidePort ports[] = {portOf(2, 1), portOf(1, 3), portOf(1, 1), portOf(-1, 9), portOf(10, 0)};
    WaveGuidePortManager manager;
    for (auto& port : ports) manager.insert(&port);
    EXPECT_EQ(keysOf(manager), (Keys{{-1, 9}, {1, 1}, {1, 3}, {2, 1}, {10, 0}}));
    EXPECT_EQ(manager.getWaveGuidePort(1), &ports[2]);

    WaveGuidePort again = portOf(1, 3);
    const Keys before = keysOf(manager);
    EXPECT_EQ(thrownBy([&] { manager.insert(&again); }),
              "quarn::WaveGuidePortManager::insert failed: mode=3 for port=1already exists");
    EXPECT_EQ(keysOf(manager), before);
}

// A loaded list may contain such ports.
TEST(WaveGuidePortManager, InsertionKeepsTheLastOfListedPortsWithEqualNumbers) {
    WaveGuidePort first = portOf(2, 1), second = portOf(2, 1), other = portOf(1, 1);
    WaveGuidePortManager manager({&first, &second});
    EXPECT_NE(thrownBy([&] { manager.insert(&first); }), "nothing");
    EXPECT_EQ(manager.getNumberOfWaveguidePorts(), 2U) << "unchanged";
    manager.insert(&other);
    EXPECT_EQ(manager.getWaveguidePorts(), (std::vector<WaveGuidePort*>{&other, &second}));
    EXPECT_EQ(findingsOf(manager, Engine::FDTD), QStringList()) << "the count still holds";
    WaveGuidePort third = portOf(3, 1);
    WaveGuidePortManager doubled({&first, &second, &second});
    doubled.insert(&third);
    EXPECT_EQ(findingsOf(doubled, Engine::FEM),
              QStringList("error: The number of ports is greater than the number of waveguide ports."));
}

TEST(WaveGuidePortManager, CountsPortsByCachingAndSharesThemWithCopies) {
    WaveGuidePort a = portOf(1, 1), b = portOf(2, 1);
    WaveGuidePortManager manager;
    manager.insert(&a);
    manager.insert(&b);
    EXPECT_EQ(manager.getNumberOfPorts(), 0U);
    WaveGuidePortManager assigned;
    assigned = manager;
    EXPECT_EQ(assigned.getNumberOfPorts(), 0U) << "assignment copies the count";
    EXPECT_EQ(WaveGuidePortManager(manager).getNumberOfPorts(), 2U) << "copy construction counts";
    EXPECT_EQ(WaveGuidePortManager(manager).getWaveguidePorts(), manager.getWaveguidePorts());
    EXPECT_EQ(findingsOf(manager, Engine::FDTD), QStringList());
    manager.cacheVariables();
    EXPECT_EQ(manager.getNumberOfPorts(), 2U);
    manager.clearWaveguidePorts();
    EXPECT_EQ(manager.getNumberOfPorts() + manager.getNumberOfWaveguidePorts(), 0U);
}

TEST(WaveGuidePortManager, HasATextForm) {
    WaveGuidePort port;
    const QString head = "name                  : noname\nwaveguide number      : -1\nwaveguide mode number : -1\n";
    EXPECT_EQ(port.qstr(),
              head +
                  "port type             : voltage\nreference resistance  : 50\nterm type             : InputOutput\n"
                  "source                : amplitude=1, phase=0 rad\noffset                : 0\n"
                  "head                  : (0, 0, 0)\ntail                  : (0, 0, 0)\n");
    port.setWaveGuidePortType(WaveGuidePort::Modal);
    port.setWaveGuideImpedanceType(ImpedanceType::Zvi);
    port.setTermType(TermType::Tristate);
    port.setWaveGuideAmplitude(1.0 / 3);
    port.setWaveGuidePhase(-1.5);
    port.setWaveGuideOffset(1e-7);
    port.setSnappedHead({1, 2, 3.25});
    port.setSnappedTail({-1, 1234567, 0});
    EXPECT_EQ(port.qstr(),
              head +
                  "port type             : modal\nimpedance type        : Zvi\nterm type             : Tristate\n"
                  "source                : amplitude=0.333333, phase=-1.5 rad\noffset                : 1e-07\n"
                  "head                  : (1, 2, 3.25)\ntail                  : (-1, 1.23457e+06, 0)\n");
    const QStringList impedances{"Zpi", "Zpv", "Zvi", "Zundefined"};
    for (int type = 0; type <= 3; ++type) {
        port.setWaveGuideImpedanceType(ImpedanceType(type));
        EXPECT_EQ(port.qstr().section('\n', 4, 4), "impedance type        : " + impedances[type]);
    }
    for (const auto& [type, text] : {std::pair(2, "current"), std::pair(7, "undefined")}) {
        port.setWaveGuidePortType(WaveGuidePort::WaveGuidePortType(type));
        EXPECT_EQ(port.qstr().section('\n', 3, 4),
                  QString("port type             : %1\nreference resistance  : 50").arg(text));
    }
}

TEST(WaveGuidePortManager, DerivesPortNamesFromFileNames) {
    WaveGuidePort port;
    for (const auto& [file, name] :
         {std::pair("a_b_c_d", "b_c"), {"a__d", ""}, {"a_d", ""}, {"ad", ""}, {"_mode 1_", "mode 1"}}) {
        port.setOutputFilename(file);
        EXPECT_EQ(port.getWaveGuidePortNameFromFilename(), name) << file;
    }
}

}  // namespace
}  // namespace quarn::test
