#include "blocktext/LineCursor.h"

#include <QTextStream>
#include <algorithm>

namespace quarn::blocktext {

LineCursor::LineCursor(QTextStream& stream) : m_stream(stream), m_string(stream.string()) {}

int skipSpace(QStringView text, int position) {
    while (position < text.size() && text[position].isSpace()) ++position;
    return position;
}

QStringView LineCursor::next(int maxLength) {
    if (m_string) return nextOfString(maxLength);
    m_stream.skipWhiteSpace();
    m_lineStart = m_stream.pos();
    m_stream.seek(m_lineStart);
    if (!m_stream.readLineInto(&m_buffer, maxLength)) m_buffer.clear();
    return m_buffer;
}

// Follows QTextStream::readLine: the limit counts the line feed, a CR goes with the LF that follows it, and a CR that
// ends the text belongs to no line.
QStringView LineCursor::nextOfString(int maxLength) {
    const QStringView text(*m_string);
    const int size = static_cast<int>(text.size());
    const int start = skipSpace(text, static_cast<int>(m_stream.pos()));
    const int limit = maxLength > 0 ? std::min(size - start, maxLength) + start : size;
    const auto feed = text.mid(start, limit - start).indexOf(u'\n');
    const bool found = feed >= 0;
    int end = found ? start + static_cast<int>(feed) : limit;
    const int behind = found ? end + 1 : end;
    if ((found || end == size) && end > start && text[end - 1] == u'\r') --end;
    m_lineStart = start;
    m_stream.seek(behind);
    return text.mid(start, end - start);
}

void LineCursor::putBack() { m_stream.seek(m_lineStart); }

}  // namespace quarn::blocktext
