#ifndef ZEL_SYSTEM_LOCALEHANDLER_H
#define ZEL_SYSTEM_LOCALEHANDLER_H

#include <memory>
#include <QtCore/QLocale>
#include <QtCore/QObject>
#include <zel/Global.h>

namespace zel {

class PpsObject;

namespace system {

/** Which of the user's locales. */
namespace LocaleType {
enum Type : int {
    Region = 2 /**< the locale for dates, times and numbers, apart from the language of the display */
};
} // namespace LocaleType

/**
 * The user's locale of one type; any type but Region is answered with the C locale.
 *
 * The region is the attribute `region` of the settings object `/pps/system/locale`, as a BCP 47 or POSIX name. Where
 * that is not set, it is the process's POSIX locale for times: the first of `LC_ALL`, `LC_TIME` and `LANG` that is not
 * empty. A region that is not a locale is reported with one warning and answered like one that is not set;
 * an object that cannot be read is reported as well, and the region that it gave before stays.
 *
 * Made to be constructed anew for every question: that and locale() together cost one look at a file's status and
 * little else.
 */
class ZEL_EXPORT LocaleHandler : public QObject
{
    Q_OBJECT

public:
    explicit LocaleHandler(LocaleType::Type type, QObject* parent = nullptr);
    ~LocaleHandler() override;

    /** The locale as it is now. May be called on any thread, and needs no event loop. */
    QLocale locale() const;

Q_SIGNALS:
    /** The locale is another one. Emitted on the handler's thread, which needs an event loop. */
    void changed();

protected:
    void connectNotify(const QMetaMethod& signal) override;

private Q_SLOTS:
    void startWatching();
    void onObjectChanged();

private:
    const LocaleType::Type m_type;
    std::unique_ptr<PpsObject> m_object; // announces changes; null while nobody is connected
};

} // namespace system

} // namespace zel

#endif
