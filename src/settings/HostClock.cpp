#include "settings/HostClock.h"

#include "bridge/Diagnostic.h"
#include "bridge/Locale.h"
#include "bridge/String.h"
#include "settings/LocaleChangeFilter.h"
#include <memory>
#include <unicode/smpdtfmt.h>

namespace zel::utility::i18n {

namespace {

constexpr int patience = 80; // milliseconds; with the way there and back a caller waits for less than 100

std::optional<int> clockOf(const QVariant& answer)
{
    if (answer == QVariant(QStringLiteral("12h"))) {
        return 12;
    }
    if (answer == QVariant(QStringLiteral("24h"))) {
        return 24;
    }
    return {};
}

int clockOfPattern(const QLocale& locale)
{
    const std::unique_ptr<icu::DateFormat> format(
        icu::DateFormat::createTimeInstance(icu::DateFormat::kShort, Locale::toICU(locale)));
    const auto* const simple = dynamic_cast<const icu::SimpleDateFormat*>(format.get());
    if (simple == nullptr) {
        return 12;
    }
    icu::UnicodeString pattern;
    const QString text = String::toQt(simple->toPattern(pattern));
    const bool has24 = String::indexOfInFormat(text, QLatin1Char('H'), 0, Qt::CaseSensitive) >= 0 ||
                       String::indexOfInFormat(text, QLatin1Char('k'), 0, Qt::CaseSensitive) >= 0;
    return has24 ? 24 : 12;
}

} // namespace

HostClock::HostClock()
    : m_portal(QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("clock-format"), patience)
{
    connect(&m_portal, SIGNAL(changed()), this, SLOT(onAnswer()));
    LocaleChangeFilter::call(this, SIGNAL(changed()), this);
    onAnswer();
}

QVariant HostClock::value() const
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_chosen) {
            return *m_chosen;
        }
    }
    return ownClock(Locale::region());
}

QString HostClock::source() const
{
    const std::lock_guard lock(m_mutex);
    return m_chosen ? QStringLiteral("the settings portal")
                    : QStringLiteral("the time pattern of %1 (%2)").arg(Locale::region().name(), m_fault);
}

void HostClock::onAnswer()
{
    const QVariant answer = m_portal.value();
    const std::optional<int> chosen = clockOf(answer);
    const QString fault =
        answer.isValid() ? QStringLiteral("the settings portal has an unknown clock format") : m_portal.fault();
    {
        const std::lock_guard lock(m_mutex);
        m_chosen = chosen;
        m_fault = fault;
    }
    if (!chosen && !m_reported) {
        Diagnostic::write(QtWarningMsg, "void zel::utility::i18n::HostClock::onAnswer()",
                          "uses the clock of the region's time pattern :", fault);
    }
    m_reported = !chosen;
    Q_EMIT changed();
}

int HostClock::ownClock(const QLocale& region) const
{
    const std::lock_guard lock(m_mutex);
    if (!m_ownClock || m_region != region) {
        m_region = region;
        m_ownClock = clockOfPattern(region);
    }
    return *m_ownClock;
}

} // namespace zel::utility::i18n
