#ifndef ZEL_TOOL_MESSAGES_H
#define ZEL_TOOL_MESSAGES_H

#include <QtCore/QStringList>
#include <QtCore/QtGlobal>

namespace zel::tool {

/** Takes the messages of the library in place of standard error as long as it exists; one at a time, in one thread. */
class Messages
{
public:
    Messages() : m_previous(qInstallMessageHandler(&Messages::handle)) { s_taken.clear(); }
    ~Messages() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY(Messages)

    /** The messages since the last call. */
    QStringList take();

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text);

    inline static QStringList s_taken;
    QtMessageHandler m_previous;
};

} // namespace zel::tool

#endif
