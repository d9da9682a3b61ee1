#pragma once

#include <QString>

#include "quarn/ProgressReporter.h"

namespace quarn::tool {

/// A line on standard error that shows how far some work is, while that is a terminal; the line is gone afterwards.
class ProgressBar {
public:
    explicit ProgressBar(const QString& label);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    /// Null where nothing is to be shown. Must not outlive the bar.
    ProgressReporter reporter();

private:
    void show(std::size_t done, std::size_t total);
    void clear();

    QString m_label;
    bool m_isShown;
    int m_length = 0;
};

}  // namespace quarn::tool
