#include "texts/LiveText.h"

#include "terminal/Console.h"
#include "terminal/Failure.h"

namespace zel::tool {

namespace {

// The library hears of a change by itself. This is enough for it to have done so when the text is written.
constexpr int turnOfTheLibrary = 100;

} // namespace

LiveText::LiveText(const QString& skeleton, const std::optional<QDateTime>& moment, Console& console, bool json)
    : m_console(console),
      m_answers(console, json),
      m_moment(moment),
      m_formatter(skeleton),
      m_interrupted(console.signalDescriptor(), QSocketNotifier::Read)
{
    if (!m_formatter.isValid()) {
        throw Failure(QStringLiteral("no pattern for the skeleton ") + quoted(skeleton));
    }
    m_settled.setSingleShot(true);
    m_settled.setInterval(turnOfTheLibrary);
    requireConnection(connect(&m_observer, SIGNAL(changed()), &m_settled, SLOT(start())));
    requireConnection(connect(&m_settled, SIGNAL(timeout()), this, SLOT(write())));
    requireConnection(connect(&m_interrupted, SIGNAL(activated(int)), &m_loop, SLOT(quit())));
}

void LiveText::run()
{
    QTimer::singleShot(0, this, SLOT(write()));
    m_loop.exec();
    // Being asked to end is how it ends, so that there is nothing left to tell.
    m_console.takeSignal();
    if (m_failure) {
        std::rethrow_exception(m_failure);
    }
}

void LiveText::write()
try {
    const QDateTime moment = m_moment.value_or(QDateTime::currentDateTime());
    m_answers.write(moment, m_formatter.format(moment));
    m_console.flush();
} catch (...) {
    // The event loop cannot be left by an exception.
    m_failure = std::current_exception();
    m_loop.quit();
}

} // namespace zel::tool
