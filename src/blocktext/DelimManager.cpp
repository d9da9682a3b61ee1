#include "quarn/DelimManager.h"

#include <QTextStream>

#include "blocktext/LineCursor.h"

namespace quarn {

using blocktext::LineCursor;

namespace {

constexpr int frameLineLimit = 1000;

const QLatin1String beginMark("begin_<");
const QLatin1String endMark("end_<");
const QLatin1String descriptionMark("description");

QStringView upToFirstCR(QStringView text) {
    const auto cr = text.indexOf(u'\r');
    return cr < 0 ? text : text.left(cr);
}

// The text between the first "<" and the first ">" of the line; null when there is no such pair.
QStringView nameInBrackets(QStringView line) {
    const auto open = line.indexOf(u'<');
    const auto close = line.indexOf(u'>');
    return open < 0 || close < open ? QStringView() : line.mid(open + 1, close - open - 1);
}

// Only the CR of a CR LF is escaped, and the LF still breaks the line: the format is asymmetric here.
QString escaped(QString description) { return description.replace(QLatin1String("\r\n"), QLatin1String("\\r\n")); }

QString unescaped(QStringView description) {
    QString text;
    for (qsizetype i = 0; i < description.size(); ++i) {
        const QChar next = description[i] == u'\\' && i + 1 < description.size() ? description[i + 1] : QChar();
        const bool isEscape = next == u'r' || next == u'n';
        text += isEscape ? QChar(next == u'r' ? u'\r' : u'\n') : description[i];
        if (isEscape) ++i;
    }
    return text;
}

}  // namespace

DelimManager::DelimManager(QTextStream& stream, const QString& filename) : m_filename(filename), m_stream(&stream) {}

void DelimManager::skipWhiteSpace(QTextStream& stream) { stream.skipWhiteSpace(); }

/// Whether the stream is in error; its status is then reset, so that callers only need to return.
bool DelimManager::failed() {
    if (m_stream->status() == QTextStream::Ok) return false;
    m_stream->resetStatus();
    return true;
}

void DelimManager::popBlock() {
    if (!m_openBlocks.empty()) m_openBlocks.pop_back();
}

bool DelimManager::BeginDelim(const QString& name, const QString& value, const QString& description) {
    if (failed()) return false;
    *m_stream << beginMark << name << "> " << value << Qt::endl;
    if (failed()) return false;
    if (!description.isEmpty()) *m_stream << descriptionMark << ' ' << escaped(description) << Qt::endl;
    if (failed()) return false;
    m_openBlocks.push_back(name);
    return true;
}

bool DelimManager::EndDelim() {
    if (m_openBlocks.empty() || failed()) return false;
    *m_stream << endMark << m_openBlocks.back() << '>' << Qt::endl;
    if (failed()) return false;
    m_openBlocks.pop_back();
    return true;
}

bool DelimManager::IsDelim(QString& name, QString& value, QString& description) {
    LineCursor cursor(*m_stream);
    const QStringView line = cursor.next(frameLineLimit);
    if (failed()) return false;

    const auto close = line.indexOf(u'>');
    const auto begin = close < 0 ? -1 : line.indexOf(beginMark);
    const auto nameStart = begin + beginMark.size();
    if (begin < 0 || close < nameStart) {
        cursor.putBack();
        return false;
    }
    const QStringView found = line.mid(nameStart, close - nameStart);
    if (!name.isEmpty() && found != name) {
        cursor.putBack();
        return false;
    }
    name = found.toString();
    value = close + 2 < line.size() ? upToFirstCR(line.mid(close + 2)).toString() : QString();

    // Only a description is read to its end: a line may be as long as the file and be examined once for each block on
    // it.
    const bool isDescription = cursor.next(descriptionMark.size()) == descriptionMark;
    if (failed()) return false;
    cursor.putBack();
    if (isDescription) {
        const QStringView rest = upToFirstCR(cursor.next()).mid(descriptionMark.size());
        description = (rest.startsWith(u' ') ? rest.mid(1) : rest).toString();
    }
    m_openBlocks.push_back(name);
    return true;
}

bool DelimManager::ContinueReading() {
    LineCursor cursor(*m_stream);
    const QStringView line = cursor.next(frameLineLimit);
    if (failed() || m_stream->atEnd()) return false;

    const auto bracket = line.indexOf(u'<');
    const auto end = bracket < 0 ? -1 : line.indexOf(endMark);
    const auto nameStart = end + endMark.size();
    const auto close = end < 0 ? -1 : line.indexOf(u'>', nameStart);
    if (close < 0) {
        cursor.putBack();
        return true;
    }
    if (m_openBlocks.empty()) return false;
    if (line.mid(nameStart, close - nameStart) != m_openBlocks.back()) return true;
    m_openBlocks.pop_back();
    return false;
}

bool DelimManager::SeekToEndOfDelim() {
    if (m_openBlocks.empty()) return false;
    const auto outside = m_openBlocks.size() - 1;
    QString name, value, description;
    while (m_openBlocks.size() > outside) {
        if (!ContinueReading()) {
            if (m_stream->atEnd() && m_openBlocks.size() > outside) return false;
            continue;
        }
        name.clear();
        if (IsDelim(name, value, description)) continue;
        LineCursor(*m_stream).next();
        m_stream->skipWhiteSpace();
        if (failed()) return false;
    }
    return true;
}

bool DelimManager::GetNextDelim(QString& name, QString& value, QString& description) {
    if (failed()) return false;
    LineCursor cursor(*m_stream);
    QStringView line;
    do {
        line = cursor.next();
        if (failed() || (line.isEmpty() && m_stream->atEnd())) return false;
        if (line.contains(endMark)) {
            if (!line.contains(u'>')) return false;
            if (!m_openBlocks.empty() && nameInBrackets(line) != m_openBlocks.back()) return false;
            popBlock();
            line = cursor.next();
            if (failed()) return false;
        }
    } while (!line.contains(beginMark));

    const auto close = line.indexOf(u'>');
    if (close < 0) return false;
    const QString foundName = nameInBrackets(line).toString();
    const QString foundValue = line.mid(close + 1).trimmed().toString();
    QString foundDescription;
    if (!readDescriptionAfterOpenLine(foundDescription)) return false;
    m_openBlocks.push_back(foundName);
    name = foundName;
    value = foundValue;
    description = foundDescription;
    return true;
}

/// Reads the description as GetNextDelim gives it: the length of the word "description" is taken off twice.
bool DelimManager::readDescriptionAfterOpenLine(QString& description) {
    LineCursor cursor(*m_stream);
    const QStringView line = cursor.next();
    if (failed()) return false;
    if (!line.startsWith(descriptionMark)) {
        cursor.putBack();
        description.clear();
        return m_stream->status() == QTextStream::Ok;
    }
    const QStringView text = line.mid(descriptionMark.size()).trimmed();
    description = unescaped(text.mid(qMin(text.size(), qsizetype(descriptionMark.size()))));
    return true;
}

bool DelimManager::GetFirstDelim(QString& name, QString& value, QString& description) {
    if (failed()) return false;
    popBlock();
    m_stream->seek(0);
    return GetNextDelim(name, value, description);
}

bool DelimManager::FindFirstDelim(const QString& name, QString& value, QString& description) {
    if (failed()) return false;
    popBlock();
    m_stream->seek(0);
    QString foundName, foundValue, foundDescription;
    do {
        if (!GetNextDelim(foundName, foundValue, foundDescription)) return false;
    } while (foundName.compare(name, Qt::CaseInsensitive) != 0);
    value = foundValue;
    description = foundDescription;
    return true;
}

bool DelimManager::FindNextDelim(const QString& name, QString& value, QString& description) {
    if (failed()) return false;
    QString foundName, foundValue, foundDescription;
    do {
        if (!GetNextDelim(foundName, foundValue, foundDescription)) return false;
    } while (foundName != name);
    value = foundValue;
    description = foundDescription;
    return true;
}

}  // namespace quarn
