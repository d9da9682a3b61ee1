#pragma once

#include <QString>
#include <type_traits>
#include <vector>

#include "Text.h"

namespace quarn::tool {

/// A title, and below it labels and values in two aligned columns; details are indented.
class Sheet {
public:
    explicit Sheet(const QString& title) : m_title(title) {}

    void add(const QString& label, const QString& value) { m_rows.push_back({label, value}); }
    void addDetail(const QString& label, const QString& value) { add("  " + label, value); }
    void print() const;

    /// Calls `add` with position and object for the first entries of a list of objects or pointers, and adds the number
    /// of the others.
    template <class List, class Add>
    void addFirst(const List& list, Add add) {
        constexpr std::size_t longestList = 20;
        for (std::size_t i = 0; i < list.size() && i < longestList; ++i) {
            if constexpr (std::is_pointer_v<typename List::value_type>) {
                add(i, *list[i]);
            } else {
                add(i, list[i]);
            }
        }
        if (list.size() > longestList) {
            addDetail(text("..."), text("and %1 more").arg(list.size() - longestList));
        }
    }

private:
    struct Row {
        QString label;
        QString value;
    };
    QString m_title;
    std::vector<Row> m_rows;
};

}  // namespace quarn::tool
