#pragma once

#include <QString>

#include "quarn/ProgressReporter.h"

namespace quarn::tool {

/// Shows the progress of some work in a line on standard error if that is a terminal, and removes the line at the end.
class ProgressBar {
public:
    explicit ProgressBar(const QString& label);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    /// Null when standard error is not a terminal. Must not outlive the bar.
    ProgressReporter reporter();

private:
    void show(std::size_t done, std::size_t total);
    void clear();

    QString m_label;
    bool m_isShown;
    int m_length = 0;
};

}  // namespace quarn::tool
