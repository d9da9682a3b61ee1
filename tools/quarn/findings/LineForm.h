#pragma once

#include <QString>
#include <QStringView>
#include <vector>

namespace quarn::tool {

/// How far a form goes in calling spellings of a number the same. Reals always count as the float that they round to,
/// since most numbers of a project are floats. Integers count by their exact value, octal and hexadecimal ones too, or
/// as reals, for a float may well be written without a point.
enum class NumberForm { ExactIntegers, AllReals };

/// The normal form of the words of a text that stands in a block: two are equal when they say the same there.
QString formOf(int block, QStringView text, NumberForm form);

std::vector<QStringView> wordsOf(QStringView text);
QStringView firstWordOf(QStringView text);

}  // namespace quarn::tool
