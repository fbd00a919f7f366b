// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_BRIDGE_DIAGNOSTIC_H
#define ZEL_UTILITY_I18N_BRIDGE_DIAGNOSTIC_H

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QtGlobal>

class QDateTime;

namespace zel::utility::i18n {

/**
 * The only way to write a message.
 *
 * A message is its items in order, each followed by one space. A QString is put between double quotes with nothing
 * escaped, a QStringList becomes ("a", "b"); literals, integers and ICU names are bare. Qt's debug stream is not used,
 * as its text differs between Qt versions.
 *
 * @code
 * Diagnostic::write(QtWarningMsg, "failed to access resource key", key, "in locale", locale.getName());
 * @endcode
 */
class Diagnostic
{
public:
    Diagnostic() = delete;

    /** Writes a message; deferred while a DeferredMessages exists on this thread. */
    template <typename... Items>
    static void write(QtMsgType type, const Items&... items)
    {
        QString text;
        (append(text, items), ...);
        hand(type, text);
    }

    /** Writes a critical message: a function failed to connect to a signal. */
    static void checkConnection(bool isConnected, const char* function, const char* signal)
    {
        if (!isConnected) {
            write(QtCriticalMsg, function, "failed to connect to", signal, "signal");
        }
    }

private:
    friend class DeferredMessages;

    static void append(QString& text, const char* item);
    static void append(QString& text, int item);
    static void append(QString& text, const QString& item);
    static void append(QString& text, const QStringList& item);
    static void append(QString& text, const QDateTime& item);
    static void hand(QtMsgType type, const QString& text);
};

} // namespace zel::utility::i18n

#endif
