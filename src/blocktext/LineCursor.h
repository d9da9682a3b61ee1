#pragma once

#include <QString>
#include <QStringView>

class QTextStream;

namespace quarn::blocktext {

/// Reads a text stream line by line and can put the last line back.
///
/// Over a string the lines are views of the string itself and nothing is copied. Over a device a line is decoded into a
/// buffer of the cursor. There, the cost of querying the position grows with the text read since the last seek, so the
/// cursor seeks to the position it has just queried: the cost of reading a line then does not depend on the lines
/// before it.
class LineCursor {
public:
    explicit LineCursor(QTextStream& stream);

    /// Skips white space, remembers the position and reads up to the end of the line or `maxLength` characters (0: the
    /// whole line), the line end included. The view lives until the next call or the next change of the string.
    QStringView next(int maxLength = 0);

    /// Moves the stream back to the beginning of the last line.
    void putBack();

private:
    QStringView nextOfString(int maxLength);

    QTextStream& m_stream;
    const QString* m_string;
    QString m_buffer;
    qint64 m_lineStart = 0;
};

/// Skips white space from `position` on and returns the position reached.
int skipSpace(QStringView text, int position);

}  // namespace quarn::blocktext
