#include "quarn/FarZoneRequest.h"

#include "blocktext/BlockWalker.h"
#include "blocktext/BlockWriter.h"

namespace quarn {

using namespace blocktext;

namespace {

namespace key {
constexpr auto OutputFileName = "OutputFileName"_key;
constexpr auto Angle = "Angle"_key;
}  // namespace key

QString withExtension(const QString& name, QLatin1String extension) {
    constexpr int dotAndTwoLetters = 3;
    return name.size() > dotAndTwoLetters ? name.chopped(dotAndTwoLetters) + extension : name;
}

}  // namespace

QString FarZoneRequest::getUANOutputFileName() const { return withExtension(m_outputFileName, QLatin1String(".uan")); }

QString FarZoneRequest::getCircularPolarizedUANOutputFileName() const {
    return withExtension(m_outputFileName, QLatin1String(".cpuan"));
}

bool FarZoneRequest::StreamOut(DelimManager& delim) const {
    putLine(delim, key::OutputFileName, m_outputFileName);
    for (const Angle& angle : m_angles) putLine(delim, key::Angle, angle.theta, angle.phi);
    return isOk(delim);
}

bool FarZoneRequest::StreamIn(DelimManager& delim) {
    m_angles.clear();
    m_outputFileName.clear();
    walkWords(delim,
              Unknown::DropWord,
              onWord(key::Angle,
                     [this](QTextStream& in) {
                         Angle angle;
                         readAll(in, angle.theta, angle.phi);
                         m_angles.push_back(angle);
                     }),
              onText(key::OutputFileName, m_outputFileName));
    return isOk(delim);
}

}  // namespace quarn
