#include "findings/BlockScan.h"

#include <algorithm>

namespace quarn::tool {

namespace {

const QLatin1String beginMark("begin_<");
const QLatin1String endMark("end_<");

bool isVersionLine(QStringView line) {
    return line.contains(QLatin1String("Version")) || line.contains(QLatin1String("FDTD file version")) ||
           isGeometryVersionLine(line);
}

/// The name in an open line; null in other lines.
QString openedBlock(QStringView line) {
    const auto begin = line.indexOf(beginMark);
    if (begin < 0) return {};
    const auto name = begin + beginMark.size();
    const auto close = line.indexOf(u'>');
    return close < name ? QString() : line.mid(name, close - name).toString();
}

/// The name in a close line; null in other lines.
QString closedBlock(QStringView line) {
    const auto end = line.indexOf(endMark);
    if (end < 0) return {};
    const auto name = end + endMark.size();
    const auto close = line.indexOf(u'>', name);
    return close < 0 ? QString() : line.mid(name, close - name).toString();
}

class Scanner {
public:
    explicit Scanner(BlockNumbers& numbers) : m_numbers(numbers) {}

    void scan(int number, QStringView line) {
        const QString closed = closedBlock(line);
        if (!closed.isNull() && m_openByName.value(closed) > 0) {
            while (innermost().name != closed) leaveUnclosed();
            m_result.lines.push_back({number, innermost().number, line});
            leave();
            return;
        }
        const QString opened = closed.isNull() ? openedBlock(line) : QString();
        if (!opened.isNull()) enter(number, opened);
        m_result.lines.push_back({number, current(), line});
    }

    void addUnscanned(int number, QStringView line) { m_result.lines.push_back({number, BlockLine::nowhere, line}); }

    BlockScan finish() {
        while (!m_open.empty()) leaveUnclosed();
        const auto byLine = [](const UnclosedBlock& a, const UnclosedBlock& b) { return a.line < b.line; };
        std::sort(m_result.unclosed.begin(), m_result.unclosed.end(), byLine);
        return std::move(m_result);
    }

private:
    struct OpenBlock {
        QString name;
        int line;
        int number;
    };

    const OpenBlock& innermost() const { return m_open.back(); }
    int current() const { return m_open.empty() ? 0 : innermost().number; }

    void enter(int line, const QString& name) {
        m_open.push_back({name, line, m_numbers.of(current(), name)});
        ++m_openByName[name];
    }
    void leave() {
        --m_openByName[innermost().name];
        m_open.pop_back();
    }
    void leaveUnclosed() {
        m_result.unclosed.push_back({innermost().line, innermost().name});
        leave();
    }

    BlockNumbers& m_numbers;
    std::vector<OpenBlock> m_open;
    QHash<QString, int> m_openByName;
    BlockScan m_result;
};

}  // namespace

int BlockNumbers::of(int parent, const QString& name) {
    const auto place = qMakePair(parent, name);
    const auto known = m_numbers.constFind(place);
    if (known != m_numbers.constEnd()) return *known;
    const int number = m_numbers.size() + 1;
    m_numbers.insert(place, number);
    return number;
}

bool isGeometryVersionLine(QStringView line) {
    return line.toString().remove(u' ').contains(QLatin1String("geometryfileversion"), Qt::CaseInsensitive);
}

BlockScan scanBlocks(const QString& text, BlockNumbers& numbers) {
    Scanner scanner(numbers);
    const QStringView all(text);
    int number = 0;
    for (qsizetype start = 0; start < all.size();) {
        const auto feed = all.indexOf(u'\n', start);
        const auto end = feed < 0 ? all.size() : feed;
        const QStringView line = all.mid(start, end - start).trimmed();
        start = end + 1;
        ++number;
        if (line.isEmpty()) continue;
        if (number > 1) {
            scanner.scan(number, line);
        } else if (!isVersionLine(line)) {
            scanner.addUnscanned(number, line);
        }
    }
    return scanner.finish();
}

}  // namespace quarn::tool
