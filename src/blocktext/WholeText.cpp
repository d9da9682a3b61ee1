#include "blocktext/WholeText.h"

#include <QIODevice>

namespace quarn::blocktext {

namespace {
constexpr qint64 charactersInMemory = qint64(1) << 28;
}

WholeText::WholeText(QTextStream& source) : m_source(source) {
    if (source.string()) {
        m_stream.setString(source.string(), QIODevice::ReadOnly);
        m_stream.seek(source.pos());
        return;
    }
    const QIODevice* device = source.device();
    if (!device) return;
    const qint64 start = device->isSequential() ? 0 : source.pos();
    m_text = source.read(charactersInMemory);
    m_onDevice = !source.atEnd() && !device->isSequential() && source.seek(start);
    if (m_onDevice) m_text.clear();
    m_stream.setString(&m_text, QIODevice::ReadOnly);
}

WholeText::~WholeText() {
    if (m_source.string()) m_source.seek(m_stream.pos());
}

}  // namespace quarn::blocktext
