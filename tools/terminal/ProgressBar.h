// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_PROGRESSBAR_H
#define ZEL_TOOL_PROGRESSBAR_H

#include <QtCore/QString>

namespace zel::tool {

/** A progress bar on standard error, if that is a terminal; erased at the end. */
class ProgressBar
{
    Q_DISABLE_COPY_MOVE(ProgressBar)

public:
    explicit ProgressBar(qint64 total);
    ~ProgressBar() { erase(); }

    /** Starts the next step. */
    void step(const QString& name) { show(m_done++, name); }

    /** Shows the progress. */
    void show(qint64 done, const QString& name = {});

    /** Erases the bar for a line of output; the next show() draws it again. */
    void erase();

private:
    bool m_visible;
    bool m_drawn = false;
    qint64 m_total;
    qint64 m_done = 0;
};

} // namespace zel::tool

#endif
