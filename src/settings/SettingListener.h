// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_SETTINGS_SETTINGLISTENER_H
#define ZEL_UTILITY_I18N_SETTINGS_SETTINGLISTENER_H

#include <memory>
#include <QtCore/QObject>

namespace zel::utility::i18n {

class PpsManager;

/**
 * Reports changes of a setting to one thread. Detects changes through the event loop of the thread that created it,
 * refreshes the shared reader, and relays the reader's signals, whichever thread triggered them.
 */
class SettingListener : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SettingListener)

public:
    explicit SettingListener(PpsManager* manager);
    ~SettingListener() override;

    /** Starts detecting changes again, in an event loop that replaced another. */
    void listen();

    /** Always emitted from the event loop, never inside a query that detects a change. */
    Q_SIGNAL void changed();

private Q_SLOTS:
    void onChange();

private:
    /** The source of changes; each platform file defines it. */
    class Source;

    PpsManager* m_manager;
    std::unique_ptr<Source> m_source;
};

} // namespace zel::utility::i18n

#endif
