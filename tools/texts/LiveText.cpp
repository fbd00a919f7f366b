#include "texts/LiveText.h"

#include "device/LibrarySettings.h"
#include "terminal/Console.h"
#include "terminal/Failure.h"
#include <zel/utility/i18n/CustomDateFormatter.h>

namespace zel::tool {

using zel::utility::i18n::CustomDateFormatter;

LiveText::LiveText(const QString& skeleton, const std::optional<QDateTime>& moment, Console& console, bool json)
    : m_console(console),
      m_answers(console, json),
      m_moment(moment),
      m_skeleton(skeleton),
      m_interrupted(console.signalDescriptor(), QSocketNotifier::Read)
{
    if (!CustomDateFormatter(skeleton).isValid()) {
        throw Failure(QStringLiteral("no pattern for the skeleton ") + quoted(skeleton));
    }
    m_again.setSingleShot(true);
    m_again.setInterval(5);
    requireConnection(connect(&m_observer, SIGNAL(changed()), this, SLOT(onChange())));
    requireConnection(connect(&m_again, SIGNAL(timeout()), this, SLOT(follow())));
    requireConnection(connect(&m_interrupted, SIGNAL(activated(int)), &m_loop, SLOT(quit())));
}

void LiveText::run()
{
    QTimer::singleShot(0, this, SLOT(write()));
    m_loop.exec();
    // A signal is the normal end and not reported.
    m_console.takeSignal();
    if (m_failure) {
        std::rethrow_exception(m_failure);
    }
}

void LiveText::onChange()
{
    m_sinceChange.start();
    follow();
}

// The library hears of a change by itself, perhaps later. Time zone and region it reads for each text.
void LiveText::follow()
{
    constexpr int timeoutMs = 5000;
    if (libraryClock() != m_observer.clock() && m_sinceChange.elapsed() < timeoutMs) {
        m_again.start();
        return;
    }
    m_again.stop();
    write();
}

void LiveText::write()
try {
    const QDateTime moment = m_moment.value_or(QDateTime::currentDateTime());
    m_answers.write(moment, CustomDateFormatter(m_skeleton).format(moment));
    m_console.flush();
} catch (...) {
    // An exception cannot leave the event loop.
    m_failure = std::current_exception();
    m_loop.quit();
}

} // namespace zel::tool
