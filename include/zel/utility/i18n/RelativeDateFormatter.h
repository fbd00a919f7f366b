#ifndef ZEL_UTILITY_I18N_RELATIVEDATEFORMATTER_H
#define ZEL_UTILITY_I18N_RELATIVEDATEFORMATTER_H

#include <memory>
#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QLocale>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <zel/utility/i18n/ClockFormat.h>
#include <zel/utility/i18n/Global.h>
#include <zel/utility/i18n/RelativeDateFormat.h>
#include <zel/utility/i18n/RelativeDateWording.h>

namespace zel::utility::i18n {

class RelativeDateFormatterPrivate;

/**
 * Tells when a moment is, seen from an anchor time: "5 minutes ago", "yesterday 10:30", "Tue 10:30", "May 11",
 * "November 2011".
 *
 * The anchor is the time of construction until it is set; it does not advance by itself. Both the anchor and the moment
 * count by the date and time that the QDateTime shows, whatever its time zone. The locale is the user's region locale
 * and the clock the user's, as they were at construction, until they are set; call applyUserRegionLocale() to follow a
 * change of the region.
 *
 * | distance                                | TimeCritical              | NonTimeCritical      |
 * | --------------------------------------- | ------------------------- | -------------------- |
 * | another calendar year                   | May 2011                  | May 2011             |
 * | four or more calendar days              | May 11                    | May 11               |
 * | two or three calendar days              | weekday with time         | weekday              |
 * | the day before or after                 | yesterday with time       | yesterday            |
 * | an hour or more within the day          | 3 hours ago               | today                |
 * | less                                    | 5 minutes ago             | today                |
 *
 * A formatter belongs to the thread that created it and is used there only.
 *
 * @code
 * #include <zel/utility/i18n/RelativeDateFormatter.h>
 *
 * using namespace zel::utility::i18n;
 * RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
 * const QString text = formatter.format(QDateTime::currentDateTime().addSecs(-300)); // 5 minutes ago
 * @endcode
 */
class ZEL_UTILITY_I18N_EXPORT RelativeDateFormatter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(zel::utility::i18n::RelativeDateFormat::Type type READ type WRITE setType)
    Q_DISABLE_COPY_MOVE(RelativeDateFormatter)

public:
    /**
     * Creates a formatter with the current time as its anchor.
     *
     * @param type the ladder to use; any other value gives a formatter that formats nothing until setType()
     * @param parent the owner, or null
     */
    explicit RelativeDateFormatter(RelativeDateFormat::Type type, QObject* parent = nullptr);
    ~RelativeDateFormatter() override;

    /** The ladder in use. */
    RelativeDateFormat::Type type() const;

    /**
     * Changes the ladder. With another one, everything starts from its defaults again: the current time as anchor, the
     * user's region locale and clock, and RelativeDateWording::Exact.
     */
    void setType(RelativeDateFormat::Type type);

    /** The locale of texts and phrases. */
    QLocale locale() const;

    /** Changes the locale of texts and phrases. */
    void setLocale(const QLocale& locale);

    /** The moment from which distances are counted. */
    QDateTime anchorTime() const;

    /** The clock as it was set last; ClockFormat::ApplyUserFormat until then. */
    ClockFormat::Type clockFormat() const;

    /** How distances are worded; RelativeDateWording::Exact until another wording is set. */
    RelativeDateWording::Type wording() const;

    /** Changes the wording. */
    void setWording(RelativeDateWording::Type wording);

    /**
     * The text for a moment.
     *
     * @param dateTime the moment to tell; an invalid one reads as 1 January 1970
     * @return the text; a null string, with a message, when the type is invalid or ICU cannot format the moment
     */
    Q_INVOKABLE QString format(const QDateTime& dateTime) const;

    /**
     * The texts that format() would give for many moments one by one, in order and with the same messages. It costs
     * much less than one call for each: what the texts need is prepared once. Nothing is kept afterwards. The call
     * cannot be cancelled and blocks its thread.
     *
     * @param dateTimes the moments, as for format()
     * @return as many texts; a null string where format() would return one
     */
    QStringList formatAll(const QList<QDateTime>& dateTimes) const;

    /**
     * The first anchor time after the present one at which the text of a moment may be another one: renew the text
     * then, and not before. A clock that is put forward or back is counted in.
     *
     * @param dateTime the moment, in the years 1 to 9999
     * @return a time in the anchor's time zone; an invalid one if the text can never change again, if the moment or the
     * anchor is outside the years 1 to 9999, or if the type is invalid
     */
    QDateTime validUntil(const QDateTime& dateTime) const;

    ZEL_UTILITY_I18N_SIGNALS
    /** The anchor, the locale, the clock, the wording or the ladder has changed: texts made before may be out of date.
     */
    Q_SIGNAL void changed();

public Q_SLOTS:
    /**
     * Changes the moment from which distances are counted. The same instant under another time zone is equal, and an
     * equal anchor changes nothing.
     */
    void setAnchorTime(const QDateTime& anchorTime);

    /** Takes the current time as anchor. */
    void applyCurrentTimeAsAnchor();

    /** Takes the user's region locale as it is now. */
    void applyUserRegionLocale();

    /**
     * Changes the clock. ClockFormat::ApplyUserFormat reads the setting of the device now, and not again until the
     * clock or the locale is changed. The value that is set already changes nothing and reads nothing.
     */
    void setClockFormat(zel::utility::i18n::ClockFormat::Type format);

protected Q_SLOTS:
    /** The same with the number of a ClockFormat::Type, for signals that carry one. */
    void setClockFormat(int format);

private:
    std::unique_ptr<RelativeDateFormatterPrivate> d;
};

} // namespace zel::utility::i18n

#endif
