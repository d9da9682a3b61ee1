#include "quarn/FarZoneRequest.h"

#include "results/FarZoneRequestBlock.h"

namespace quarn {

using namespace blocktext;

namespace {

constexpr auto requestLines = Description<FarZoneRequest>::block("");

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
    requestLines.writeLines(delim, *this);
    return isOk(delim);
}

bool FarZoneRequest::StreamIn(DelimManager& delim) {
    *this = FarZoneRequest();
    requestLines.read(delim, *this);
    return isOk(delim);
}

}  // namespace quarn
