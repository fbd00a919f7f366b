// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_SETTINGS_PPSMANAGER_H
#define ZEL_UTILITY_I18N_SETTINGS_PPSMANAGER_H

#include <memory>
#include <mutex>
#include <QtCore/QObject>
#include <QtCore/QVariant>
#include <zel/utility/i18n/Global.h>

namespace zel::utility::i18n {

/**
 * Follows one attribute of a settings object, or the corresponding setting of the host.
 *
 * Belongs to the thread that created it and receives changes through that thread's event loop; value() may be called on
 * any thread. An object that cannot be opened leaves the value invalid; one that cannot be read or decoded leaves the
 * last value.
 *
 * A manager shared by several threads is moved to no thread: there refresh(), not an event loop, detects changes.
 *
 * @code
 * PpsManager manager("/pps/system/settings", "@settings", "hourFormat", nullptr);
 * manager.value().toInt(); // 24
 * @endcode
 */
class PpsManager : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PpsManager)

public:
    /**
     * Opens the object and reads the attribute. The three strings are not copied.
     *
     * @param path the path of the object
     * @param map the name of the object with a leading "@"
     * @param key the name of the attribute
     */
    PpsManager(const char* path, const char* map, const char* key, QObject* parent)
        : PpsManager(path, map, key, HostSetting::None, parent)
    {
    }

    /** The settings of a Linux host by attribute. */
    enum class HostSetting { None, Clock, TimeZone };

    /** The same for the desktop build; the device platform needs the three strings only. */
    PpsManager(const char* path, const char* map, const char* key, HostSetting host, QObject* parent);
    ~PpsManager() override;

    const char* path() const { return m_path; }

    /** The attribute's last value; invalid if it is not set. */
    QVariant value() const;

    /**
     * Reads the attribute again if the object changed; costs one stat() otherwise. Call on any thread once the manager
     * belongs to none. A broken object is reported once.
     *
     * @return false if the object is being written and cannot be read, so that another call is needed soon
     */
    bool refresh();

    ZEL_UTILITY_I18N_SIGNALS
    /** The value changed. */
    Q_SIGNAL void changed();

private Q_SLOTS:
    void onPpsUpdate();

private:
    friend class SettingListener;

    /** The source of the attribute; each platform file defines it. */
    class Source;

    /** Returns whether the value changed. */
    bool setValue(const QVariant& value);

    std::unique_ptr<Source> m_source;
    const char* m_path;
    const char* m_map;
    const char* m_key;
    mutable std::mutex m_valueMutex;
    QVariant m_value;
};

} // namespace zel::utility::i18n

#endif
