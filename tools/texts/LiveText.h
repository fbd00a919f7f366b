// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_LIVETEXT_H
#define ZEL_TOOL_LIVETEXT_H

#include "texts/Answers.h"
#include <exception>
#include <optional>
#include <QtCore/QDateTime>
#include <QtCore/QEventLoop>
#include <QtCore/QObject>
#include <QtCore/QSocketNotifier>
#include <QtCore/QTimer>
#include <zel/utility/i18n/RelativeDateFormatter.h>

namespace zel::tool {

class Console;

/** Prints a text whenever the device changes, until a signal requests termination. */
class LiveText : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LiveText)

public:
    /** @param moment the moment to show; the current time if empty */
    LiveText(const QString& skeleton, const std::optional<QDateTime>& moment, Console& console, bool json);

    void run();

private Q_SLOTS:
    void write();

private:
    Console& m_console;
    const Answers m_answers;
    const std::optional<QDateTime> m_moment;
    const QString m_skeleton;
    zel::utility::i18n::RelativeDateFormatter m_library; // announces changes of the settings
    QSocketNotifier m_interrupted;
    QEventLoop m_loop;
    std::exception_ptr m_failure;
};

} // namespace zel::tool

#endif
