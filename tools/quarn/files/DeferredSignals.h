#pragma once

#include <QString>

namespace quarn::tool {

/// Defers SIGINT and SIGTERM for as long as it exists, so that a temporary file can be removed before the process ends.
/// The destructor gives a signal that arrived its usual effect.
class DeferredSignals {
public:
    /// Defers nothing when `output` is a device or a pipe: these need no temporary file, and writing to them may block.
    explicit DeferredSignals(const QString& output);
    ~DeferredSignals();
    DeferredSignals(const DeferredSignals&) = delete;
    DeferredSignals& operator=(const DeferredSignals&) = delete;

    /// Whether a signal arrived, so that the work should stop.
    bool isPending() const;

private:
    using Handler = void (*)(int);

    bool m_isDeferring;
    Handler m_onInterrupt = nullptr;
    Handler m_onTermination = nullptr;
};

}  // namespace quarn::tool
