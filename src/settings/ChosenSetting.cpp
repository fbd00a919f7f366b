#include "settings/ChosenSetting.h"

#include <mutex>
#include <optional>

namespace zel::utility::i18n {

namespace {

struct Chosen
{
    std::mutex mutex;
    std::optional<QMap<QString, QVariant>> settings;
};

// Never destroyed: something may still be formatted while the process destroys its static objects.
Chosen& chosen()
{
    static Chosen* const instance = std::make_unique<Chosen>().release();
    return *instance;
}

} // namespace

void ChosenSetting::choose(const QMap<QString, QVariant>& settings)
{
    const std::lock_guard lock(chosen().mutex);
    chosen().settings = settings;
}

bool ChosenSetting::isInUse()
{
    const std::lock_guard lock(chosen().mutex);
    return chosen().settings.has_value();
}

QVariant ChosenSetting::value() const
{
    const std::lock_guard lock(chosen().mutex);
    return chosen().settings->value(m_key);
}

QString ChosenSetting::source() const
{
    return QStringLiteral("this process");
}

} // namespace zel::utility::i18n
