// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "Clock.h"

#include "Connection.h"
#include "LocaleChangeFilter.h"
#include "Region.h"
#include <memory>
#include <QtCore/QCoreApplication>
#include <QtCore/QThread>
#include <unicode/datefmt.h>
#include <unicode/errorcode.h>
#include <unicode/fieldpos.h>
#include <zel/icu/QtLocale.h>

namespace zel::host {

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

// Whether the format has the field outside quotes.
bool hasField(const icu::DateFormat& format, icu::DateFormat::EField field)
{
    icu::FieldPosition position(field);
    icu::UnicodeString text;
    format.format(0.0, text, position);
    return position.getEndIndex() > position.getBeginIndex();
}

int clockOfPattern(const QLocale& locale)
{
    icu::ErrorCode status;
    const std::unique_ptr<icu::DateFormat> format(icu::DateFormat::createTimeInstance(
        icu::DateFormat::kShort, icudata::QtLocale::toGregorianICU(locale, status)));
    const bool has24 = format && (hasField(*format, icu::DateFormat::kHourOfDay0Field) ||
                                  hasField(*format, icu::DateFormat::kHourOfDay1Field));
    return has24 ? 24 : 12;
}

} // namespace

Clock::Clock(Reporter reporter, int timeoutMs) : m_reporter(reporter), m_portal(ask(timeoutMs))
{
    onAnswer(m_portal->value(), m_portal->reason());
    if (const QCoreApplication* const application = QCoreApplication::instance()) {
        m_portal->moveToThread(application->thread());
    }
    LocaleChangeFilter::call(this, SIGNAL(changed()), this, m_reporter, Qt::DirectConnection);
}

std::unique_ptr<SettingsPortal> Clock::ask(int timeoutMs)
{
    auto portal = std::make_unique<SettingsPortal>(QStringLiteral("org.gnome.desktop.interface"),
                                                   QStringLiteral("clock-format"), timeoutMs, m_reporter);
    // Direct: this belongs to the thread of the first query, which may be gone.
    checkConnection(m_reporter,
                    connect(portal.get(), SIGNAL(changed(QVariant, QString)), this, SLOT(onAnswer(QVariant, QString)),
                            Qt::DirectConnection),
                    "std::unique_ptr<SettingsPortal> zel::host::Clock::ask(int)", "SettingsPortal::changed()");
    return portal;
}

std::unique_ptr<QObject> Clock::listen()
{
    return m_portal->thread() == QThread::currentThread() ? nullptr : ask(SettingsPortal::later);
}

QVariant Clock::value() const
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_chosen) {
            return *m_chosen;
        }
    }
    return ownClock(Region::now());
}

QString Clock::source() const
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_chosen) {
            return QStringLiteral("the settings portal");
        }
    }
    const QString region = Region::now().name();
    const std::lock_guard lock(m_mutex);
    return QStringLiteral("the time pattern of %1 (%2)").arg(region, m_reason);
}

QString Clock::take(const QVariant& answer, const QString& reason)
{
    const std::lock_guard lock(m_mutex);
    m_chosen = clockOf(answer);
    m_reason = answer.isValid() ? QStringLiteral("the settings portal has an unknown clock format") : reason;
    const bool isNews = !m_chosen && !m_reported;
    m_reported = !m_chosen;
    return isNews ? m_reason : QString();
}

void Clock::onAnswer(const QVariant& answer, const QString& reason)
{
    const QString silence = take(answer, reason);
    Q_EMIT changed();
    if (!silence.isEmpty()) {
        m_reporter(QtWarningMsg, QStringLiteral("void zel::host::Clock::onAnswer() uses the clock of the region's time "
                                                "pattern : \"%1\"")
                                     .arg(silence));
    }
}

int Clock::ownClock(const QLocale& region) const
{
    const std::lock_guard lock(m_mutex);
    if (!m_ownClock || m_region != region) {
        m_region = region;
        m_ownClock = clockOfPattern(region);
    }
    return *m_ownClock;
}

} // namespace zel::host
