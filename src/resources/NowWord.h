// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_RESOURCES_NOWWORD_H
#define ZEL_UTILITY_I18N_RESOURCES_NOWWORD_H

#include <QtCore/QLocale>
#include <QtCore/QString>

namespace zel::utility::i18n {

/** A locale's word for now. */
class NowWord
{
public:
    NowWord() = delete;

    /** "now" in English, "jetzt" in German; empty if the locale's data has no word. */
    static QString of(const QLocale& locale);
};

} // namespace zel::utility::i18n

#endif
