#pragma once

#include <QHash>
#include <QPair>
#include <QString>
#include <QStringView>
#include <vector>

namespace quarn::tool {

/// Numbers for the places in a block text: two blocks have the same number when their names and those of the blocks
/// around them are the same. 0 is the place outside all blocks. Texts that share the numbers can be compared.
class BlockNumbers {
public:
    int of(int parent, const QString& name);

private:
    QHash<QPair<int, QString>, int> m_numbers;
};

/// A line that is not blank, trimmed. Open and close lines belong to the block that they open and close.
struct BlockLine {
    int number;  ///< counted from 1
    int block;
    QStringView text;

    static constexpr int nowhere = -1;  ///< the block of a line that no reader looks at
};

struct UnclosedBlock {
    int line;
    QString name;
};

struct BlockText {
    std::vector<BlockLine> lines;
    std::vector<UnclosedBlock> unclosed;  ///< in the order of their lines
};

/// Whether the first line of a text makes it a geometry file, in whatever case and with whatever blanks.
bool isGeometryVersionLine(QStringView line);

/// Scans a block text. The first line is the version line and left out; where it says something else it opens and
/// closes nothing, since it is taken for the version line all the same. The result views the text. Lines count as open
/// and close lines wherever in them the mark stands, as for the library. A close line also ends the unclosed blocks
/// within its block; one without a block is an ordinary line.
BlockText scanBlockText(const QString& text, BlockNumbers& numbers);

}  // namespace quarn::tool
