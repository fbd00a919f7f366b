// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_SETTINGS_CLOCKSETTING_H
#define ZEL_UTILITY_I18N_SETTINGS_CLOCKSETTING_H

#include <QtCore/QObject>
#include <zel/utility/i18n/ClockFormat.h>
#include <zel/utility/i18n/Global.h>

namespace zel::utility::i18n {

class PpsManager;

/**
 * The clock setting of the device. An object relays the changes of the process's shared reader, through the event loop
 * of the thread that created it; a thread without an event loop can query at any time. On a desktop the value is the
 * last one that arrived through the event loop of any thread.
 */
class ClockSetting : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ClockSetting)

public:
    /** An instance constructed re-entrantly while the reader is being created receives no changed(). */
    explicit ClockSetting(QObject* parent);
    ~ClockSetting() override = default;

    /**
     * The user's clock: Use12hourClock or Use24hourClock. Default: 12-hour; with a message if the setting is invalid.
     * Call on any thread.
     */
    static zel::utility::i18n::ClockFormat::Type clockFormat();

    ZEL_UTILITY_I18N_SIGNALS
    /** The setting changed. */
    Q_SIGNAL void changed();

private:
    /** The shared reader; null on a thread that is creating it, and after the process has destroyed it. */
    static PpsManager* getPpsManager();
};

} // namespace zel::utility::i18n

#endif
