#include "blocktext/BlockDescription.h"
#include "project/Sections.h"
#include "quarn/OwnedProject.h"

namespace quarn {

using namespace blocktext;

namespace {

using Units = QPair<QString, double>;

constexpr auto unitsOf(Key name) {
    return describeWords<Units>(name,
                                Unknown::DropLine,
                                Unreadable::KeepsValue,
                                value("Name", &Units::first),
                                value("Conversion", &Units::second).in("m"));
}
constexpr auto displayUnits = unitsOf("Display");
constexpr auto modelingUnits = unitsOf("Modeling");

constexpr auto units = [] {
    using P = v6ProjectFile;
    return describe<P>("Units",
                       Unknown::DropLine,
                       Unreadable::KeepsValue,
                       innerBlock(property(&P::getDisplayUnits, &P::setDisplayUnits), displayUnits),
                       innerBlock(property(&P::getModelingUnits, &P::setModelingUnits), modelingUnits));
}();

/// The two inner blocks are entered without a walk of their own, so that the close line of the first of them ends the
/// section. Of a file as it is written only the display units are read therefore: the modeling units stay as they are.
struct UnitsContent {
    Units display, modeling;
    Units* entered = &display;

    Offer block(const QString& name, const QString&) {
        if (name != displayUnits.name && name != modelingUnits.name) return Offer::Unknown;
        entered = name == displayUnits.name ? &display : &modeling;
        return Offer::Continue;
    }
    Offer word(QStringView word, QTextStream& in) { return displayUnits.offerWord(word, in, *entered); }
    static Offer line(QTextStream&) { return Offer::Unknown; }
};

bool StreamOutUnits(DelimManager& delim, const v6ProjectFile& project) { return units.write(delim, project); }

bool StreamInUnits(DelimManager& delim, v6ProjectFile& project) {
    UnitsContent content{project.getDisplayUnits(), project.getModelingUnits()};
    walkContent<true>(delim, Unknown::DropLine, content);
    project.setDisplayUnits(content.display);
    project.setModelingUnits(content.modeling);
    return isOk(delim);
}

}  // namespace

const Section unitsSection{units.name, Unreadable::Fails, StreamOutUnits, StreamInUnits, [](FormatBuilder& builder) {
                               units.describeTo(builder, OwnedProject());
                           }};

}  // namespace quarn
