// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_SYSTEM_LOCALEHANDLER_H
#define ZEL_SYSTEM_LOCALEHANDLER_H

#include <QtCore/QLocale>
#include <QtCore/QObject>
#include <zel/Global.h>

namespace zel {

class PpsObject;

namespace system {

/** The types of user locales. */
namespace LocaleType {
enum Type : int {
    Region = 2 ///< the locale for dates, times and numbers; not the language of the display
};
} // namespace LocaleType

/**
 * The user's locale of one type. Types other than Region give the C locale.
 *
 * The region is the attribute `region` of the settings object `/pps/system/locale`, a BCP 47 or POSIX name. If it is
 * not set, the fallback is the process's POSIX locale for times: the first of `LC_ALL`, `LC_TIME` and `LANG` that is
 * not empty. A region that is not a locale causes one warning, and the fallback is used; an object that cannot be read
 * causes a warning as well, and its last region stays in use.
 *
 * Handlers are cheap enough to create one per query: construction and locale() cost about one stat().
 *
 * @code
 * #include <zel/system/LocaleHandler.h>
 *
 * const QLocale region = zel::system::LocaleHandler(zel::system::LocaleType::Region).locale();
 * @endcode
 */
class ZEL_EXPORT LocaleHandler : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LocaleHandler)

public:
    /** Creates a handler for a type, on any thread. Cannot fail. */
    explicit LocaleHandler(LocaleType::Type type, QObject* parent = nullptr);
    ~LocaleHandler() override;

    /** Returns the current locale. Needs no event loop. Thread-safe. */
    QLocale locale() const;

Q_SIGNALS:
    /** The locale changed. Emitted on the handler's thread, which needs an event loop. */
    void changed();

protected:
    void connectNotify(const QMetaMethod& signal) override;

private Q_SLOTS:
    void startWatching();
    void onObjectChanged();

private:
    const LocaleType::Type m_type;
    PpsObject* m_object = nullptr; // a child that announces changes; null while nothing is connected
};

} // namespace system

} // namespace zel

#endif
