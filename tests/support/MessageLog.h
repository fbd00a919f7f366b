// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TESTS_MESSAGELOG_H
#define ZEL_TESTS_MESSAGELOG_H

#include <QtCore/QMutex>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QtGlobal>

/**
 * Records all messages that reach the Qt message handler while it exists, each as its type and text:
 * "warning: text". Any thread may write; one log at a time.
 */
class MessageLog
{
public:
    MessageLog() : m_previous(qInstallMessageHandler(&MessageLog::handle)) { s_current = this; }
    ~MessageLog()
    {
        qInstallMessageHandler(m_previous);
        s_current = nullptr;
    }
    Q_DISABLE_COPY_MOVE(MessageLog)

    /** The messages since the last call. */
    QStringList take()
    {
        const QMutexLocker locker(&m_mutex);
        QStringList taken;
        taken.swap(m_messages);
        return taken;
    }

private:
    static void handle(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
    {
        if (s_current == nullptr) {
            return;
        }
        const QMutexLocker locker(&s_current->m_mutex);
        s_current->m_messages.append(name(type) + QStringLiteral(": ") + text);
    }

    static QString name(QtMsgType type)
    {
        static const char* const names[] = {"debug", "warning", "critical", "fatal", "info"};
        return QString::fromLatin1(names[type]);
    }

    inline static MessageLog* s_current = nullptr;
    QtMessageHandler m_previous;
    QMutex m_mutex;
    QStringList m_messages;
};

#endif
