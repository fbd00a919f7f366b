#include "settings/ClockSetting.h"

#include "bridge/Diagnostic.h"
#include "settings/PpsManager.h"
#include <QtCore/QMutexLocker>
#include <QtCore/QRecursiveMutex>
#include <QtCore/QScopeGuard>

namespace zel::utility::i18n {

namespace {

namespace pps {
constexpr const char* path = "/pps/system/settings";
constexpr const char* map = "@settings";
constexpr const char* key = "hourFormat";
} // namespace pps

namespace mutex {
QRecursiveMutex getPpsManager;
}

} // namespace

ClockSetting::ClockSetting(QObject* parent) : QObject(parent)
{
    if (const PpsManager* const manager = getPpsManager()) {
        connect(manager, SIGNAL(changed()), this, SIGNAL(changed()));
    }
}

ClockFormat::Type ClockSetting::clockFormat()
{
    const PpsManager* const manager = getPpsManager();
    const QVariant value = manager == nullptr ? QVariant() : manager->value();
    if (!value.isValid()) {
        return ClockFormat::Use12hourClock;
    }
    switch (value.toInt()) {
    case ClockFormat::Use12hourClock:
        return ClockFormat::Use12hourClock;
    case ClockFormat::Use24hourClock:
        return ClockFormat::Use24hourClock;
    default:
        Diagnostic::write(QtCriticalMsg,
                          "zel::utility::i18n::ClockSetting::onPpsUpdate encountered unknown ClockFormat in PPS");
        return ClockFormat::Use12hourClock;
    }
}

PpsManager* ClockSetting::getPpsManager()
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
