#include "sheets/Sheet.h"

#include <algorithm>

#include "Console.h"

namespace quarn::tool {

void Sheet::print() const {
    out() << printable(m_title) << '\n';
    int width = 0;
    for (const Row& row : m_rows) width = std::max(width, row.label.size());
    for (const Row& row : m_rows) {
        out() << "  " << row.label.leftJustified(width + 2) << printable(row.value) << '\n';
    }
}

}  // namespace quarn::tool
