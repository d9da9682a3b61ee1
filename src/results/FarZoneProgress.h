#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <utility>

#include "quarn/ProgressReporter.h"

namespace quarn::farzone {

/// Tells a caller how far the work is, at the beginning, at the end and no more than twenty times a second in between,
/// and hears whether to go on. Work is counted in any unit and reported as a share of the caller's total.
class Progress {
public:
    Progress(ProgressReporter reporter, std::size_t total, double work)
        : m_reporter(std::move(reporter)), m_total(total), m_work(work) {}

    bool begin() { return report(0); }
    bool end() { return report(m_total); }

    bool advance(double work) {
        m_done += work;
        return !m_reporter || Clock::now() - m_lastReport < interval || report(share());
    }

private:
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::milliseconds interval{50};

    std::size_t share() const {
        const double fraction = m_done < m_work ? m_done / m_work : 1.0;
        return std::min(static_cast<std::size_t>(fraction * static_cast<double>(m_total)), m_total);
    }

    bool report(std::size_t done) {
        m_lastReport = Clock::now();
        return !m_reporter || m_reporter(done, m_total);
    }

    ProgressReporter m_reporter;
    std::size_t m_total;
    double m_work;
    double m_done = 0.0;
    Clock::time_point m_lastReport{};
};

}  // namespace quarn::farzone
