#pragma once

#include <QString>
#include <QStringView>
#include <vector>

namespace quarn::tool {

/// Which spellings of a number count as equal. Reals count as the float that they round to, since most numbers of a
/// project are floats. Integers, octal and hexadecimal ones included, count by their exact value, or as reals, since a
/// float may be written without a point.
enum class NumberForm { ExactIntegers, AllReals };

/// The normal form of a line in a block: two lines of the block mean the same when their forms are equal.
QString formOf(int block, QStringView text, NumberForm form);

std::vector<QStringView> wordsOf(QStringView text);
QStringView firstWordOf(QStringView text);

}  // namespace quarn::tool
