#pragma once

#include <QStringList>
#include <stdexcept>
#include <string>

#include "TestSupport.h"

namespace quarn::test {

/// The message of the std::runtime_error that `call` throws, or "nothing".
template <class Call>
std::string thrownBy(Call call) {
    try {
        call();
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "nothing";
}

/// What a check appends to lists that hold something already: errors, then warnings.
template <class Checked, class... Arguments>
QStringList findingsOf(const Checked& checked, Arguments... arguments) {
    QStringList errors("error: "), warnings("warning: "), found;
    checked.checkValidity(errors, warnings, arguments...);
    for (const QString& text : errors.mid(1)) found << errors.first() + text;
    for (const QString& text : warnings.mid(1)) found << warnings.first() + text;
    return found;
}

}  // namespace quarn::test
