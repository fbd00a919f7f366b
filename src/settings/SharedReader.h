// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_SETTINGS_SHAREDREADER_H
#define ZEL_UTILITY_I18N_SETTINGS_SHAREDREADER_H

#include "bridge/DeferredMessages.h"
#include "settings/PpsManager.h"
#include "settings/SettingListener.h"
#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QMutexLocker>
#include <QtCore/QPointer>
#include <QtCore/QRecursiveMutex>
#include <QtCore/QScopeGuard>

namespace zel::utility::i18n {

/** The reader of a setting that all threads share, and its listener on each thread. One instance per Setting. */
template <typename Setting>
class SharedReader
{
public:
    SharedReader() = delete;

    /** The shared reader; null on a thread that is creating it, and after the process has destroyed it. */
    static PpsManager* get(QRecursiveMutex& mutex, const char* path, const char* map, const char* key,
                           PpsManager::HostSetting host)
    {
        const DeferredMessages messages;
        const QMutexLocker locker(&mutex);
        // A message handler that runs while the reader is created may query the setting.
        static thread_local bool creating = false;
        if (creating || s_destroyed) {
            return nullptr;
        }
        creating = true;
        static Reader ppsManager(path, map, key, host);
        creating = false;
        return &ppsManager;
    }

    /** The value as it is now; invalid without a reader. */
    static QVariant value(PpsManager* manager)
    {
        if (manager == nullptr) {
            return {};
        }
        manager->refresh();
        return manager->value();
    }

    /** The listener of this thread; null without a reader, and after the thread has destroyed it. */
    static const SettingListener* listener(PpsManager* manager)
    {
        static thread_local bool destroyed = false;
        if (manager == nullptr || destroyed) {
            return nullptr;
        }
        // Message handlers may request the listener, too, but not while it is created.
        const DeferredMessages messages;
        static thread_local QPointer<QAbstractEventDispatcher> dispatcher(QAbstractEventDispatcher::instance());
        static thread_local SettingListener threadListener(manager);
        static thread_local const auto atExit = qScopeGuard([] { destroyed = true; });
        // Queued events and timers are lost with the event loop of an application object.
        if (dispatcher != QAbstractEventDispatcher::instance()) {
            dispatcher = QAbstractEventDispatcher::instance();
            threadListener.listen();
        }
        return &threadListener;
    }

private:
    /** Belongs to no thread, so that it survives the end of every thread. */
    class Reader : public PpsManager
    {
    public:
        Reader(const char* path, const char* map, const char* key, HostSetting host)
            : PpsManager(path, map, key, host, nullptr)
        {
            moveToThread(nullptr);
        }
        ~Reader() override { s_destroyed = true; }
    };

    // Texts may be formatted after the process has destroyed the reader.
    inline static bool s_destroyed = false;
};

} // namespace zel::utility::i18n

#endif
