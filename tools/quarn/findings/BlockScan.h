#pragma once

#include <QHash>
#include <QPair>
#include <QString>
#include <QStringView>
#include <vector>

namespace quarn::tool {

/// Numbers the blocks of block texts: two blocks have the same number when their names and the names of the blocks
/// around them are equal. 0 stands for lines outside all blocks. Texts that share one object can be compared.
class BlockNumbers {
public:
    int of(int parent, const QString& name);

private:
    QHash<QPair<int, QString>, int> m_numbers;
};

/// A trimmed line that is not blank. Open and close lines belong to the block that they open and close.
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

struct BlockScan {
    std::vector<BlockLine> lines;
    std::vector<UnclosedBlock> unclosed;  ///< in the order of their lines
};

/// Whether the first line of a text makes it a geometry file. Case and blanks do not matter.
bool isGeometryVersionLine(QStringView line);

/// Scans a block text. The result refers to the text. Readers take the first line for the version line whatever it
/// says, so it opens and closes no block; the result lacks it when it is a version line. As in the library, an open or
/// a close mark counts anywhere in its line. A close line also ends the unclosed blocks within its block; a close line
/// without a block is an ordinary line.
BlockScan scanBlocks(const QString& text, BlockNumbers& numbers);

}  // namespace quarn::tool
