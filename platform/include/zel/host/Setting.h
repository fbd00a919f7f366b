#ifndef ZEL_HOST_SETTING_H
#define ZEL_HOST_SETTING_H

#include <memory>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace zel::host {

/** Takes a message about the host, one line without a space at its end. It is called on any thread. */
using Reporter = void (*)(QtMsgType type, const QString& text);

/** A setting of the Linux host. All functions may be called on any thread. */
class Setting : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Setting)

public:
    Setting() = default;
    ~Setting() override = default;

    virtual QVariant value() const = 0;

    /** Where the value comes from, for people. */
    virtual QString source() const = 0;

    /**
     * Lets the calling thread hear of changes through its event loop for as long as the result lives; null where the
     * thread hears of them already.
     */
    virtual std::unique_ptr<QObject> listen() = 0;

Q_SIGNALS:
    /** The value may have become another one. Emitted on the thread that hears of it. */
    void changed();
};

} // namespace zel::host

#endif
