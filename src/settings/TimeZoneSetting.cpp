#include "settings/TimeZoneSetting.h"

#include "settings/PpsManager.h"
#include <QtCore/QMutexLocker>
#include <QtCore/QRecursiveMutex>
#include <QtCore/QScopeGuard>

namespace zel::utility::i18n {

namespace {

namespace pps {
constexpr const char* path = "/pps/services/confstr/_CS_TIMEZONE";
constexpr const char* map = "@_CS_TIMEZONE";
constexpr const char* key = "_CS_TIMEZONE";
} // namespace pps

namespace mutex {
QRecursiveMutex getPpsManager;
}

} // namespace

TimeZoneSetting::TimeZoneSetting(QObject* parent) : QObject(parent)
{
    if (const PpsManager* const manager = getPpsManager()) {
        connect(manager, SIGNAL(changed()), this, SIGNAL(changed()));
    }
}

QString TimeZoneSetting::timeZone()
{
    const PpsManager* const manager = getPpsManager();
    return manager == nullptr ? QString() : manager->value().toString();
}

PpsManager* TimeZoneSetting::getPpsManager()
{
    const QMutexLocker locker(&mutex::getPpsManager);
    // A message handler that asks for the setting is called in the middle of a first read that fails.
    static thread_local bool creating = false;
    // Something may still be formatted when the process has destroyed the reader.
    static bool destroyed = false;
    if (creating || destroyed) {
        return nullptr;
    }
    creating = true;
    static PpsManager ppsManager(pps::path, pps::map, pps::key, nullptr);
    static const auto atExit = qScopeGuard([] { destroyed = true; });
    creating = false;
    return &ppsManager;
}

} // namespace zel::utility::i18n
