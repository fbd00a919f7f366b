#include "settings/HostClock.h"

#include "bridge/DeferredMessages.h"
#include "bridge/Diagnostic.h"
#include "bridge/Locale.h"
#include "bridge/String.h"
#include "settings/LocaleChangeFilter.h"
#include <memory>
#include <QtCore/QCoreApplication>
#include <QtCore/QThread>
#include <unicode/smpdtfmt.h>

namespace zel::utility::i18n {

namespace {

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

HostClock::HostClock(int timeoutMs) : m_portal(ask(timeoutMs))
{
    onAnswer(m_portal->value(), m_portal->reason());
    if (const QCoreApplication* const application = QCoreApplication::instance()) {
        m_portal->moveToThread(application->thread());
    }
    LocaleChangeFilter::call(this, SIGNAL(changed()), this, Qt::DirectConnection);
}

std::unique_ptr<SettingsPortal> HostClock::ask(int timeoutMs)
{
    auto portal = std::make_unique<SettingsPortal>(QStringLiteral("org.gnome.desktop.interface"),
                                                   QStringLiteral("clock-format"), timeoutMs);
    // Direct: this belongs to the thread that asked first, which may be gone.
    Diagnostic::checkConnection(connect(portal.get(), SIGNAL(changed(QVariant, QString)), this,
                                        SLOT(onAnswer(QVariant, QString)), Qt::DirectConnection),
                                "std::unique_ptr<SettingsPortal> zel::utility::i18n::HostClock::ask(int)",
                                "SettingsPortal::changed()");
    return portal;
}

std::unique_ptr<QObject> HostClock::listen()
{
    return m_portal->thread() == QThread::currentThread() ? nullptr : ask(SettingsPortal::later);
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
                    : QStringLiteral("the time pattern of %1 (%2)").arg(Locale::region().name(), m_reason);
}

void HostClock::onAnswer(const QVariant& answer, const QString& reason)
{
    const DeferredMessages messages;
    {
        const std::lock_guard lock(m_mutex);
        m_chosen = clockOf(answer);
        m_reason = answer.isValid() ? QStringLiteral("the settings portal has an unknown clock format") : reason;
        if (!m_chosen && !m_reported) {
            Diagnostic::write(QtWarningMsg, "void zel::utility::i18n::HostClock::onAnswer()",
                              "uses the clock of the region's time pattern :", m_reason);
        }
        m_reported = !m_chosen;
    }
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
