// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_SETTINGS_TIMEZONESETTING_H
#define ZEL_UTILITY_I18N_SETTINGS_TIMEZONESETTING_H

#include <QtCore/QObject>
#include <QtCore/QString>
#include <zel/utility/i18n/Global.h>

namespace zel::utility::i18n {

class PpsManager;

/**
 * The time zone of the device. An object relays the changes of the process's shared reader, through the event loop of
 * the thread that created it; a thread without an event loop can query at any time.
 */
class TimeZoneSetting : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TimeZoneSetting)

public:
    /** An instance constructed re-entrantly while the reader is being created receives no changed(). */
    explicit TimeZoneSetting(QObject* parent);
    ~TimeZoneSetting() override = default;

    /** The identifier of the time zone, unchecked; empty if it is not set. Call on any thread. */
    static QString timeZone();

    ZEL_UTILITY_I18N_SIGNALS
    /** The setting changed. */
    Q_SIGNAL void changed();

private:
    /** The shared reader; null on a thread that is creating it, and after the process has destroyed it. */
    static PpsManager* getPpsManager();
};

} // namespace zel::utility::i18n

#endif
