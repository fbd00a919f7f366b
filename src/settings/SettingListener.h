#ifndef ZEL_UTILITY_I18N_SETTINGS_SETTINGLISTENER_H
#define ZEL_UTILITY_I18N_SETTINGS_SETTINGLISTENER_H

#include <memory>
#include <QtCore/QObject>

namespace zel::utility::i18n {

class PpsManager;

/**
 * What one thread hears of a setting. It notices changes through the event loop of the thread that created it, has the
 * shared reader take them, and relays what the reader announces, whichever thread made the reader notice.
 */
class SettingListener : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SettingListener)

public:
    explicit SettingListener(PpsManager* manager);
    ~SettingListener() override;

    /** Begins to notice changes anew, as in an event loop that has taken the place of another. */
    void listen();

    /** Always through the event loop: a query that notices a change does not call anybody in the middle of it. */
    Q_SIGNAL void changed();

private Q_SLOTS:
    void onChange();

private:
    /** What the platform announces changes with; each platform unit defines its own. */
    class Source;

    PpsManager* m_manager;
    std::unique_ptr<Source> m_source;
};

} // namespace zel::utility::i18n

#endif
