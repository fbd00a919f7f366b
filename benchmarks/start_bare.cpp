// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// The same first text from ICU alone. If Qt Core is linked, too, moment and locale come from it.

#include "Stopwatch.h"

#include <memory>
#include <string>
#include <unicode/dtptngen.h>
#include <unicode/smpdtfmt.h>
#ifdef ZEL_WITH_QT
#include <QtCore/QDateTime>
#include <QtCore/QLocale>
#endif

namespace {

icu::Locale locale()
{
#ifdef ZEL_WITH_QT
    const QString name = QLocale(QStringLiteral("en_US")).bcp47Name();
    icu::Locale locale = icu::Locale::createFromName(name.toUtf8().constData());
#else
    icu::Locale locale("en_US");
#endif
    UErrorCode status = U_ZERO_ERROR;
    locale.setKeywordValue("calendar", "gregorian", status);
    return locale;
}

UDate moment()
{
#ifdef ZEL_WITH_QT
    return static_cast<UDate>(
        QDateTime::fromString(QStringLiteral("2012-09-03T10:30Z"), Qt::ISODate).toMSecsSinceEpoch());
#else
    return 1337164200000.0;
#endif
}

} // namespace

int main()
{
    const Stopwatch stopwatch;
    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale icuLocale = locale();
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(icuLocale, status));
    icu::SimpleDateFormat format(generator->getBestPattern(u"yMMMd", status), icuLocale, status);
    format.adoptTimeZone(icu::TimeZone::getGMT()->clone());
    icu::UnicodeString text;
    format.format(moment(), text);
    std::string utf8;
    text.toUTF8String(utf8);
    stopwatch.stop();
    std::puts(utf8.c_str());
    return 0;
}
