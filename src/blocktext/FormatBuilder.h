#pragma once

#include <QLatin1String>
#include <vector>

#include "quarn/FormatReference.h"

namespace quarn::blocktext {

/// Collects the blocks of a format with their lines.
class FormatBuilder {
public:
    /// Begins a block within those that are open, and ends it.
    void begin(QLatin1String name);
    void end();

    /// Adds a line to the innermost open block.
    void add(const FormatLine& line) { m_blocks[m_open.back()].lines.push_back(line); }

    /// Adds the line of an inner block, which is described next.
    void addBlock(const QString& name, const QString& written) {
        add({name, QStringLiteral("block"), {}, {}, {}, written});
    }

    std::vector<FormatBlock> blocks() && { return std::move(m_blocks); }

private:
    std::vector<FormatBlock> m_blocks;
    std::vector<std::size_t> m_open;
};

}  // namespace quarn::blocktext
