// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "patterns/ClockPattern.h"

#include "bridge/Diagnostic.h"
#include "settings/ClockSetting.h"
#include <QtCore/QLatin1Char>

namespace zel::utility::i18n {

namespace {

QString withHourLetter(QString skeleton, char letter)
{
    return skeleton.replace(QLatin1Char('j'), QLatin1Char(letter));
}

} // namespace

bool ClockPattern::isNotApplicable(const QString& skeleton)
{
    return !skeleton.contains(QLatin1Char('j'), Qt::CaseInsensitive);
}

QString ClockPattern::apply(const QString& skeleton, ClockFormat::Type format)
{
    if (isNotApplicable(skeleton)) {
        return skeleton;
    }
    switch (format) {
    case ClockFormat::ApplyUserFormat:
        return apply(skeleton, ClockSetting::clockFormat());
    case ClockFormat::ApplyLocaleFormat:
        return skeleton;
    case ClockFormat::Use12hourClock:
        return withHourLetter(skeleton, 'h');
    case ClockFormat::Use24hourClock:
        return withHourLetter(skeleton, 'H');
    }
    Diagnostic::write(QtCriticalMsg,
                      "static QString zel::utility::i18n::ClockPattern::apply(const QString&, "
                      "zel::utility::i18n::ClockFormat::Type)",
                      "called with invalid clock format type", static_cast<int>(format));
    return {};
}

} // namespace zel::utility::i18n
