#include "Text.h"

#include <QStringList>
#include <algorithm>

namespace quarn::tool {

QString printable(QString text) {
    const auto isControl = [](QChar c) { return c.category() == QChar::Other_Control && c != u'\t'; };
    std::replace_if(text.begin(), text.end(), isControl, QChar(QChar::ReplacementCharacter));
    return text;
}

QString listText(std::initializer_list<std::pair<bool, const char*>> flags) {
    QStringList names;
    for (const auto& [isSet, name] : flags) {
        if (isSet) names << name;
    }
    return names.join(", ");
}

}  // namespace quarn::tool
