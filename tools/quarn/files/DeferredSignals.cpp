#include "files/DeferredSignals.h"

#include <QFileInfo>
#include <csignal>

#include "quarn/LongPathUtil.h"

namespace quarn::tool {

namespace {

volatile std::sig_atomic_t pendingSignal = 0;

void defer(int signal) { pendingSignal = signal; }

// A signal that is ignored, as by processes in the background, stays ignored.
auto installFor(int signal) {
    const auto earlier = std::signal(signal, defer);
    if (earlier == SIG_IGN) std::signal(signal, SIG_IGN);
    return earlier;
}

}  // namespace

DeferredSignals::DeferredSignals(const QString& output) {
    const QFileInfo target(resolveLongPath(output, true));
    m_isDeferring = !target.exists() || target.isFile();
    if (!m_isDeferring) return;
    m_onInterrupt = installFor(SIGINT);
    m_onTermination = installFor(SIGTERM);
}

DeferredSignals::~DeferredSignals() {
    if (!m_isDeferring) return;
    std::signal(SIGINT, m_onInterrupt);
    std::signal(SIGTERM, m_onTermination);
    if (isPending()) std::raise(pendingSignal);
}

bool DeferredSignals::isPending() const { return pendingSignal != 0; }

}  // namespace quarn::tool
