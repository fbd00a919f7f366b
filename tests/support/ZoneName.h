// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TESTS_ZONENAME_H
#define ZEL_TESTS_ZONENAME_H

#include "bridge/String.h"
#include <QtCore/QDateTime>
#include <unicode/smpdtfmt.h>

/** ICU's name of a zone at a moment, which depends on the version. */
inline QString zoneName(const QByteArray& zone, const QDateTime& moment, const icu::Locale& locale)
{
    UErrorCode status = U_ZERO_ERROR;
    icu::SimpleDateFormat format(u"z", locale, status);
    format.adoptTimeZone(icu::TimeZone::createTimeZone(zone.constData()));
    icu::UnicodeString name;
    return zel::utility::i18n::String::toQt(format.format(static_cast<UDate>(moment.toMSecsSinceEpoch()), name));
}

#endif
