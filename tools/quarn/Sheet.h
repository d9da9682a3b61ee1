#pragma once

#include <QString>
#include <vector>

namespace quarn::tool {

/// A title and below it labels and values in two aligned columns, details indented below what they belong to.
class Sheet {
public:
    explicit Sheet(const QString& title) : m_title(title) {}

    void add(const QString& label, const QString& value) { m_rows.push_back({label, value}); }
    void addDetail(const QString& label, const QString& value) { add(QStringLiteral("  ") + label, value); }
    void print() const;

private:
    struct Row {
        QString label;
        QString value;
    };
    QString m_title;
    std::vector<Row> m_rows;
};

}  // namespace quarn::tool
