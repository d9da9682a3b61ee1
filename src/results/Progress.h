#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <utility>

#include "quarn/ProgressReporter.h"

namespace quarn {

/// Reports progress to the caller at the beginning, at the end and at most twenty times a second in between, and
/// receives whether to continue.
///
/// Work is counted in nanoseconds of estimated time and reported as a share of the caller's total. The computation
/// calls advance() after every piece of work, preparations included. Pieces may be as small as convenient, since the
/// clock is read once in a millisecond of work; none may be longer than a hundred milliseconds.
class Progress {
public:
    using Clock = std::chrono::steady_clock;
    using Now = Clock::time_point (*)();

    explicit Progress(ProgressReporter reporter, std::size_t total = 1, Now now = &Clock::now)
        : m_reporter(std::move(reporter)), m_total(total), m_now(now) {}

    /// Sets the amount of work ahead. Until then reports say that nothing is done.
    void expect(double work) { m_work = m_done + work; }

    /// @name All return false when the caller wants the work to stop
    /// @{
    bool begin() { return report(0); }
    bool end() { return report(m_total); }
    bool advance(double work) {
        m_done += work;
        if (!m_reporter || m_done < m_nextCheck) return true;
        m_nextCheck = m_done + workBetweenChecks;
        return m_now() - m_lastReport < interval || report(share());
    }
    /// @}

private:
    static constexpr std::chrono::milliseconds interval{50};
    static constexpr double workBetweenChecks = 1e6;

    std::size_t share() const {
        const double fraction = m_work > 0.0 ? std::min(m_done / m_work, 1.0) : 0.0;
        return std::min(static_cast<std::size_t>(fraction * static_cast<double>(m_total)), m_total);
    }

    bool report(std::size_t done) {
        m_lastReport = m_now();
        return !m_reporter || m_reporter(done, m_total);
    }

    ProgressReporter m_reporter;
    std::size_t m_total;
    Now m_now;
    double m_work = 0.0;
    double m_done = 0.0;
    double m_nextCheck = 0.0;
    Clock::time_point m_lastReport{};
};

}  // namespace quarn
