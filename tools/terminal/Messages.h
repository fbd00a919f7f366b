// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_MESSAGES_H
#define ZEL_TOOL_MESSAGES_H

#include <QtCore/QStringList>
#include <QtCore/QtGlobal>

namespace zel::tool {

/** Collects the messages of the library, instead of standard error, while it exists. One at a time, on one thread. */
class Messages
{
    Q_DISABLE_COPY_MOVE(Messages)

public:
    Messages() : m_previous(qInstallMessageHandler(&Messages::handle)) { s_taken.clear(); }
    ~Messages() { qInstallMessageHandler(m_previous); }

    /** The messages since the last call. */
    QStringList take();

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text);

    inline static QStringList s_taken;
    QtMessageHandler m_previous;
};

} // namespace zel::tool

#endif
