// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "terminal/ProgressBar.h"

#include <cstdio>
#include <unistd.h>
#include <utility>

namespace zel::tool {

namespace {

constexpr int width = 40;
constexpr const char* eraseLine = "\r\033[K";

} // namespace

ProgressBar::ProgressBar(qint64 total) : m_visible(::isatty(STDERR_FILENO) == 1), m_total(total) {}

void ProgressBar::show(qint64 done, const QString& name)
{
    if (!m_visible) {
        return;
    }
    const int percent = m_total == 0 ? 100 : static_cast<int>(done * 100 / m_total);
    const QString bar = QString(percent * width / 100, QLatin1Char('#')).leftJustified(width, QLatin1Char('.'));
    // NOLINTNEXTLINE(cert-err33-c): an error cannot be reported elsewhere
    std::fprintf(stderr, "%s[%s] %3d %% %s", eraseLine, qPrintable(bar), percent, qPrintable(name));
    m_drawn = true;
}

void ProgressBar::erase()
{
    if (std::exchange(m_drawn, false)) {
        std::fputs(eraseLine, stderr); // NOLINT(cert-err33-c): an error cannot be reported elsewhere
    }
}

} // namespace zel::tool
