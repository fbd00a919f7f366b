#include "terminal/ProgressBar.h"

#include <cstdio>
#include <unistd.h>

namespace zel::tool {

namespace {

constexpr int width = 40;
constexpr const char* eraseLine = "\r\033[K";

} // namespace

ProgressBar::ProgressBar(int total) : m_visible(::isatty(STDERR_FILENO) == 1), m_total(total) {}

ProgressBar::~ProgressBar()
{
    if (m_visible) {
        std::fputs(eraseLine, stderr); // NOLINT(cert-err33-c): there is nowhere else to complain
    }
}

void ProgressBar::step(const QString& name)
{
    if (!m_visible) {
        return;
    }
    const int filled = m_total == 0 ? width : m_done * width / m_total;
    const QString bar = QString(filled, QLatin1Char('#')).leftJustified(width, QLatin1Char('.'));
    // NOLINTNEXTLINE(cert-err33-c): there is nowhere else to complain
    std::fprintf(stderr, "%s[%s] %3d %% %s", eraseLine, qPrintable(bar), m_total == 0 ? 100 : m_done * 100 / m_total,
                 qPrintable(name));
    ++m_done;
}

} // namespace zel::tool
