#include "ProgressBar.h"

#include <cstdio>

#include "Text.h"

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace quarn::tool {

namespace {

bool isTerminal(std::FILE* file) {
#ifdef _WIN32
    return _isatty(_fileno(file)) != 0;
#else
    return isatty(fileno(file)) != 0;
#endif
}

}  // namespace

ProgressBar::ProgressBar(const QString& label) : m_label(label), m_isShown(isTerminal(stderr)) {}

ProgressBar::~ProgressBar() { clear(); }

ProgressReporter ProgressBar::reporter() {
    if (!m_isShown) return nullptr;
    return [this](std::size_t done, std::size_t total) {
        show(done, total);
        return true;
    };
}

void ProgressBar::show(std::size_t done, std::size_t total) {
    constexpr int width = 40;
    const double share = total > 0 ? static_cast<double>(done) / static_cast<double>(total) : 1.0;
    const QString filled(static_cast<int>(share * width), u'#');
    const QString line =
        text("%1 [%2] %3 %").arg(m_label, filled.leftJustified(width), QString::number(static_cast<int>(share * 100)));
    std::fprintf(stderr, "\r%s", line.toUtf8().constData());
    std::fflush(stderr);
    m_length = line.size();
}

void ProgressBar::clear() {
    if (m_length == 0) return;
    std::fprintf(stderr, "\r%*s\r", m_length, "");
    std::fflush(stderr);
}

}  // namespace quarn::tool
