#ifndef ZEL_TOOL_LIVETEXT_H
#define ZEL_TOOL_LIVETEXT_H

#include "device/DeviceObserver.h"
#include "texts/Answers.h"
#include <exception>
#include <optional>
#include <QtCore/QDateTime>
#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QObject>
#include <QtCore/QSocketNotifier>
#include <QtCore/QTimer>

namespace zel::tool {

class Console;

/** Prints a text whenever the device changes, until a signal requests termination. */
class LiveText : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LiveText)

public:
    /** @param moment the moment to show; the current time if empty */
    LiveText(const QString& skeleton, const std::optional<QDateTime>& moment, Console& console, bool json);

    void run();

private Q_SLOTS:
    void onChange();
    void follow();
    void write();

private:
    Console& m_console;
    const Answers m_answers;
    const std::optional<QDateTime> m_moment;
    const QString m_skeleton;
    DeviceObserver m_observer;
    QElapsedTimer m_sinceChange;
    QTimer m_again;
    QSocketNotifier m_interrupted;
    QEventLoop m_loop;
    std::exception_ptr m_failure;
};

} // namespace zel::tool

#endif
