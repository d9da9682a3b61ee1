#include "Text.h"

#include <algorithm>

namespace quarn::tool {

QString printable(QString text) {
    const auto isControl = [](QChar c) { return c.category() == QChar::Other_Control && c != u'\t'; };
    std::replace_if(text.begin(), text.end(), isControl, QChar(QChar::ReplacementCharacter));
    return text;
}

}  // namespace quarn::tool
