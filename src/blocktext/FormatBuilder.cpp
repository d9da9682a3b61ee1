#include "blocktext/FormatBuilder.h"

namespace quarn::blocktext {

void FormatBuilder::begin(QLatin1String name) {
    const QString path = m_open.empty() ? QString() : m_blocks[m_open.back()].path + u'/';
    m_open.push_back(m_blocks.size());
    m_blocks.push_back({name, path + name, {}});
}

void FormatBuilder::end() { m_open.pop_back(); }

}  // namespace quarn::blocktext
