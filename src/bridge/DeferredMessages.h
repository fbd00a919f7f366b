#ifndef ZEL_UTILITY_I18N_BRIDGE_DEFERREDMESSAGES_H
#define ZEL_UTILITY_I18N_BRIDGE_DEFERREDMESSAGES_H

#include <QtCore/QString>
#include <QtCore/QtGlobal>
#include <utility>
#include <vector>

namespace zel::utility::i18n {

/**
 * Holds back the messages of its thread until the outermost instance on that thread is destroyed. Declared before a
 * lock, it keeps message handlers, which may do anything, from running while the lock is held.
 */
class DeferredMessages
{
    Q_DISABLE_COPY_MOVE(DeferredMessages)

public:
    DeferredMessages();
    ~DeferredMessages();

    /** Returns false, and keeps nothing, on a thread without an instance. */
    static bool hold(QtMsgType type, const QString& text);

private:
    static thread_local DeferredMessages* s_outermost;

    std::vector<std::pair<QtMsgType, QString>> m_messages;
};

} // namespace zel::utility::i18n

#endif
