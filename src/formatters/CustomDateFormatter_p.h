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

/** The state of a CustomDateFormatter, and its answers to changes of the device. */
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

    /** Listens to the clock while the skeleton has hours, or stops to. */
    void installClockFormatIfNeeded(bool install) const;

    /** Builds the formatter anew; on failure the one before stays in use. */
    void updateFormatter() const;

    /** Takes the region as it is now and builds the formatter anew if that is another one. */
    void updateRegionLocale() const;

    /** Gives a formatter the zone of the device, and returns true; or GMT for a skeleton without a zone. */
    bool adoptTimeZone(icu::SimpleDateFormat& target) const;

    CustomDateFormatter* q;
    QString skeleton;
    mutable QLocale locale;
    mutable std::unique_ptr<ClockSetting> clockSetting;
    mutable std::shared_ptr<icu::SimpleDateFormat> formatter;
    mutable unsigned int updates = 0;

private Q_SLOTS:
    void onClockFormatChange();
};

} // namespace zel::utility::i18n

#endif
