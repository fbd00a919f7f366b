// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_FORMATTERS_CUSTOMDATEFORMATTER_P_H
#define ZEL_UTILITY_I18N_FORMATTERS_CUSTOMDATEFORMATTER_P_H

#include <memory>
#include <QtCore/QLocale>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <unicode/smpdtfmt.h>
#include <unicode/unistr.h>

namespace zel::utility::i18n {

class ClockSetting;
class CustomDateFormatter;

/** The state of a CustomDateFormatter, and its reactions to changes of the device. */
class CustomDateFormatterPrivate : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CustomDateFormatterPrivate)

public:
    CustomDateFormatterPrivate(CustomDateFormatter* owner, const QString& text);
    ~CustomDateFormatterPrivate() override;

    bool hasHours() const;
    bool hasTimeZone() const;
    icu::UnicodeString icuSkeleton() const;

    /** Follows the clock if the skeleton has hours. */
    void installClockFormatIfNeeded(bool install) const;

    /** Rebuilds the formatter; on failure the previous one stays in use. */
    void updateFormatter() const;

    /** Reads the region, and rebuilds the formatter if it changed. */
    void updateRegionLocale() const;

    /** Sets the zone of the device and returns true; for a skeleton without a zone, sets GMT and returns false. */
    bool adoptTimeZone(icu::SimpleDateFormat& target) const;

    CustomDateFormatter* q;
    QString skeleton;
    mutable QLocale locale;
    mutable std::unique_ptr<ClockSetting> clockSetting;
    mutable std::shared_ptr<icu::SimpleDateFormat> formatter;
    mutable unsigned int updates = 0;

private Q_SLOTS:
    void onClockFormatChange();

private:
    /** A new ICU formatter; null on failure, with a message. */
    std::unique_ptr<icu::SimpleDateFormat> createFormatter() const;
};

} // namespace zel::utility::i18n

#endif
