#ifndef ZEL_UTILITY_I18N_RESOURCES_NOWWORD_H
#define ZEL_UTILITY_I18N_RESOURCES_NOWWORD_H

#include <QtCore/QLocale>
#include <QtCore/QString>

namespace zel::utility::i18n {

/** The word of a locale for the present moment. */
class NowWord
{
public:
    NowWord() = delete;

    /** "now" in English, "jetzt" in German; empty where the locale's data has no word of its own. */
    static QString of(const QLocale& locale);
};

} // namespace zel::utility::i18n

#endif
