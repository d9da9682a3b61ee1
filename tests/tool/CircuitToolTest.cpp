#include "quarn/MeshlessVia.h"
#include "tool/ToolFixture.h"

namespace quarn::test {
namespace {

using testing::HasSubstr;

class CircuitToolTest : public ToolTest {
protected:
    void writeProjectWithCircuit() {
        const QString circuit = expanded(
            "ComponentsPorts{ PortType 1; FeedData{ ComponentName feed; XLocation 3; YLocation 4; ZLocation 5;"
            "CellEdgeDirection 2; IsPort; FileName None; Source 1; Polarity 1; Resistance 50; Inductance 0;"
            "Capacitance 0; Amplitude 1; Phase 0; Delay 0; Type 1; IsActive ; WaveformIndex 0;"
            "TermType InputOutput; Calibration KeepSelfKeepMutual; } }"
            "WaveGuidePorts{ PortData{ IsModal; PortNumber 1; ModeNumber 2; Offset 0; ImpedanceType Zpi;"
            "Resistance 50; Amplitude 1; Phase 1.5707963; FileName ; ModeName TE10; TermType InputOutput;"
            "SnappedHead{ X 0; Y 0; Z 0; } SnappedTail{ X 0; Y 0; Z 0; } } }");
        const QString behindBoundaries = "end_<OuterBoundaries>\n";
        write("run", cleanWith({{behindBoundaries, behindBoundaries + circuit}}));
    }
};

TEST_F(CircuitToolTest, CheckListsComponentsAndPorts) {
    writeProjectWithCircuit();
    expect("check run",
           0,
           "run: port 0: feed, #=0 : V=1, phase=0, R=50, L=0, C=0, arr=Series\n"
           "run: waveguide port: TE10, waveguide 1 mode 2, amplitude 1, phase 90°\n"
           "run: no findings\n");
}

TEST_F(CircuitToolTest, ShowDescribesComponentsAndPorts) {
    writeProjectWithCircuit();
    EXPECT_THAT(run({"show", "run"}).out,
                HasSubstr("  Circuit         1 component, 1 of them ports; S-parameters with port 0 active\n"
                          "    port 0        feed, #=0 : V=1, phase=0, R=50, L=0, C=0, arr=Series at cell (2, 3, 4), "
                          "active\n"
                          "  Waveguides      1 waveguide port\n"
                          "    port 0        TE10, waveguide 1 mode 2, amplitude 1, phase 90°\n"));
}

TEST_F(CircuitToolTest, ShowDescribesViasAndTellsWhenTheirFileIsCutShort) {
    const QualifiedPoint bottom(0, 0, -1e-3, QualifiedPoint::OnVertex, 1);
    const QualifiedPoint top(0, 2e-3, 1e-3, QualifiedPoint::InElement, 2);
    const std::vector<MeshlessVia> vias = {{bottom, top, 1e-4, 1.7e-8, 1.0}, {bottom, top, 2e-4, 1e-4, 1.7e-8, 1.0}};
    MeshlessVia::write_binary(vias, folder.filePath("whole").toStdString());
    write("cut", read("whole").chopped(1));
    expect("show whole cut",
           0,
           "whole: meshless vias\n"
           "  Vias  2, 1 of them coaxial\n"
           "    x   0 m to 0 m\n"
           "    y   0 m to 2 mm\n"
           "    z   -1 mm to 1 mm\n"
           "\n"
           "cut: meshless vias\n"
           "  Vias       1, 0 of them coaxial\n"
           "  Cut short  the file says 2 vias\n"
           "    x        0 m to 0 m\n"
           "    y        0 m to 2 mm\n"
           "    z        -1 mm to 1 mm\n");
}

}  // namespace
}  // namespace quarn::test
