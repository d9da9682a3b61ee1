#include "blocktext/WholeText.h"

#include <QIODevice>
#include <QTextCodec>

namespace quarn::blocktext {

namespace {
constexpr int mibOfUtf8 = 106;
}  // namespace

void decodeAsUtf8(QTextStream& stream) {
    if (!stream.codec() || stream.codec()->mibEnum() != mibOfUtf8) stream.setCodec("UTF-8");
}

WholeText::WholeText(QTextStream& source, qint64 maximumInMemory) : m_source(source) {
    if (source.string()) {
        m_stream.setString(source.string(), QIODevice::ReadOnly);
        m_stream.seek(source.pos());
        return;
    }
    const QIODevice* device = source.device();
    if (!device) return;
    // The position is queried only where it is needed: a stream decodes its buffer again to determine it.
    const bool canStayOnDevice = !device->isSequential() && device->size() > maximumInMemory;
    const qint64 start = canStayOnDevice ? source.pos() : 0;
    m_text = source.read(maximumInMemory);
    m_onDevice = canStayOnDevice && !source.atEnd() && source.seek(start);
    if (m_onDevice) m_text.clear();
    m_stream.setString(&m_text, QIODevice::ReadOnly);
}

WholeText::~WholeText() {
    if (m_source.string()) m_source.seek(m_stream.pos());
}

}  // namespace quarn::blocktext
