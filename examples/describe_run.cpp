// Describes a run, checks it and saves it: describe_run FILE

#include <QFile>
#include <QTextStream>

#include "quarn/quarn.h"

int main(int argc, char** argv) {
    using namespace quarn;
    if (argc != 2) return 2;

    OwnedProject project;
    project.setDisplayUnits({"mm", 1e-3});
    const auto cpml = BoundaryConditions::CPML;
    project.setBoundaryConditions(new BoundaryConditions(cpml, cpml, cpml, cpml, cpml, cpml, 8));
    project.setPlaneWave(new PlaneWave(90, 0, 1, PlaneWave::Theta, "incident"));
    project.getWaveforms().push_back(new Waveform(Waveform::ModulatedGaussian, 512, 2.45e9F, {}, {}));
    project.setTerminationCriteria(new TerminationCriteria(0, 20000, 0));

    QStringList errors, warnings;
    project.checkValidity(errors, warnings);
    QTextStream(stderr) << (errors + warnings).join('\n');

    QFile file(argv[1]);
    bool failed = !errors.isEmpty() || !file.open(QIODevice::WriteOnly);
    if (!failed) {
        QTextStream stream(&file);
        failed = project.saveToStream(stream);  // true when the stream is in error
    }
    return failed ? 1 : 0;
}
