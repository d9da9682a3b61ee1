#pragma once

#include <QString>

namespace quarn::tool {

/// While it lives, SIGINT and SIGTERM do not end the process at once, so that a temporary file can be removed first. At
/// the end of its life a signal that came takes its usual effect: by default it ends the process.
class DeferredSignals {
public:
    /// Nothing is deferred where `output` is a device or a pipe: these are written into without a temporary file, and
    /// may keep a writer waiting.
    explicit DeferredSignals(const QString& output);
    ~DeferredSignals();
    DeferredSignals(const DeferredSignals&) = delete;
    DeferredSignals& operator=(const DeferredSignals&) = delete;

    /// Whether a signal came, so that the work should be given up.
    bool isPending() const;

private:
    using Handler = void (*)(int);

    bool m_isDeferring;
    Handler m_onInterrupt = nullptr;
    Handler m_onTermination = nullptr;
};

}  // namespace quarn::tool
