// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

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
 * Formats a moment relative to an anchor time: "5 minutes ago", "yesterday 10:30", "Sat 10:30", "Aug 28",
 * "November 2011".
 *
 * The calendar distance between moment and anchor selects the format:
 *
 * | distance                     | TimeCritical        | NonTimeCritical |
 * | ---------------------------- | ------------------- | --------------- |
 * | another calendar year        | November 2011       | November 2011   |
 * | four or more calendar days   | Aug 28              | Aug 28          |
 * | two or three calendar days   | Sat 10:30           | Saturday        |
 * | the day before or after      | yesterday 10:30     | yesterday       |
 * | an hour or more, same day    | 3 hours ago         | today           |
 * | less than an hour, same day  | 5 minutes ago       | today           |
 *
 * - The anchor is the time of construction until it is set. It does not advance by itself; see validUntil().
 * - Moment and anchor are compared by the date and time that each QDateTime shows, regardless of its time zone. Convert
 *   both to one zone first: with an anchor of 10:30 UTC, 12:30 in Berlin is the same instant but reads "in 2 hours".
 * - With RelativeDateWording::Exact, the default, the first row takes precedence: on 1 January, two minutes ago may
 *   read "December 2012".
 * - Locale and clock are those of the user at construction until they are set. A later change on the device does not
 *   affect an existing formatter: call applyUserRegionLocale() or create another one.
 * - Texts are capitalized as in the middle of a sentence. Where a capital first letter is expected, for example in a
 *   list, the application has to add it.
 *
 * Use a formatter only on the thread that created it; give each thread its own.
 *
 * @code
 * #include <zel/utility/i18n/RelativeDateFormatter.h>
 *
 * using namespace zel::utility::i18n;
 * const RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
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
     * Creates a formatter that belongs to the calling thread, which may be any thread. Defaults: the anchor is the
     * current time, the locale the user's region locale, the clock ClockFormat::ApplyUserFormat, the wording
     * RelativeDateWording::Exact.
     *
     * @param type the formatting table; for an unknown one, a message is written, and format() returns null strings
     * until setType() sets a known one
     * @param parent the owner, or null
     */
    explicit RelativeDateFormatter(RelativeDateFormat::Type type, QObject* parent = nullptr);
    ~RelativeDateFormatter() override;

    /**
     * Returns the formatting table that was set last, even an unknown one. Cannot fail. Call on the formatter's thread.
     */
    RelativeDateFormat::Type type() const;

    /**
     * Sets the formatting table, resets anchor, locale, clock and wording to the defaults of a new formatter, and emits
     * changed(). Setting the current table does nothing. Call on the formatter's thread.
     *
     * @param type the formatting table; for an unknown one, a message is written, and format() returns null strings
     * until a known one is set
     */
    void setType(RelativeDateFormat::Type type);

    /**
     * Returns the locale of the texts: the one that was set last, or else the user's region locale at construction or
     * at the last setType(). Cannot fail. Call on the formatter's thread.
     */
    QLocale locale() const;

    /**
     * Sets the locale of the texts and emits changed(). Setting the current locale does nothing. Call on the
     * formatter's thread.
     *
     * @param locale the locale; QLocale::c() means English. Where ICU has no data for it, data of its parent locale is
     * used. If ICU cannot build a pattern, a message is written and texts are empty.
     */
    void setLocale(const QLocale& locale);

    /**
     * Returns the anchor that was set last, in the time zone in which it was set; the time of construction or of the
     * last setType() by default. Cannot fail. Call on the formatter's thread.
     */
    QDateTime anchorTime() const;

    /**
     * Returns the clock that was set last; ClockFormat::ApplyUserFormat by default. Cannot fail. Call on the
     * formatter's thread.
     */
    ClockFormat::Type clockFormat() const;

    /**
     * Returns the wording that was set last; RelativeDateWording::Exact by default. Cannot fail. Call on the
     * formatter's thread.
     */
    RelativeDateWording::Type wording() const;

    /**
     * Sets the wording and emits changed(). Setting the current wording does nothing. Call on the formatter's thread.
     *
     * @param wording the wording; an unknown value means Exact
     */
    void setWording(RelativeDateWording::Type wording);

    /**
     * Formats a moment relative to the anchor, in the formatter's locale. Call on the formatter's thread.
     *
     * @param dateTime the moment; an invalid one means 1970-01-01 00:00
     * @return the text; a null string, with a message, if the type is unknown or ICU cannot format the moment
     */
    Q_INVOKABLE QString format(const QDateTime& dateTime) const;

    /**
     * Formats many moments relative to the anchor, in the formatter's locale. The texts and messages are those of one
     * format() call for each moment, in order, at a fraction of the cost.
     *
     * The call blocks and cannot be cancelled. It needs memory only for the texts, and keeps nothing afterwards. Call
     * on the formatter's thread.
     *
     * @param dateTimes the moments, as for format()
     * @return one text for each moment; a null string where format() would return one
     */
    QStringList formatAll(const QList<QDateTime>& dateTimes) const;

    /**
     * Returns the first time after the anchor at which the text of a moment may change. Format the moment again with
     * that anchor, not before. Changes of the zone's offset (daylight saving time) are taken into account. Call on the
     * formatter's thread.
     *
     * @param dateTime the moment, in the years 1 to 9999
     * @return a time in the anchor's time zone; an invalid one if the text never changes again, if the moment or the
     * anchor is invalid or outside the years 1 to 9999, or if the type is unknown
     */
    QDateTime validUntil(const QDateTime& dateTime) const;

    /**
     * Calls a slot or signal of a receiver whenever the user's clock, region or time zone changes, because texts may be
     * out of date then. The connection ends with the formatter or the receiver. The formatter itself keeps its locale
     * and clock. Changes arrive through the event loop of the formatter's thread. Call on that thread.
     *
     * @param receiver the object to call
     * @param member the slot or signal without arguments, in SLOT() or SIGNAL()
     * @return whether the receiver has such a member; if not, Qt writes a message
     */
    bool connectToSettings(QObject* receiver, const char* member);

    ZEL_UTILITY_I18N_SIGNALS
    /** Anchor, locale, clock, wording or type changed; format texts again. Emitted on the formatter's thread. */
    Q_SIGNAL void changed();

public Q_SLOTS:
    /**
     * Sets the anchor and emits changed(). Setting the same instant does nothing, even in another time zone. Call on
     * the formatter's thread.
     *
     * @param anchorTime the anchor; its date and time count as shown, regardless of its time zone. An invalid one means
     * 1970-01-01 00:00.
     */
    void setAnchorTime(const QDateTime& anchorTime);

    /** Sets the anchor to the current local time and emits changed(). Cannot fail. Call on the formatter's thread. */
    void applyCurrentTimeAsAnchor();

    /**
     * Sets the locale to the user's current region locale and emits changed() if it differs. Fallback, where no region
     * is set: the locale of the process's environment. Call on the formatter's thread.
     */
    void applyUserRegionLocale();

    /**
     * Sets the clock and emits changed(). Setting the current value does nothing. Call on the formatter's thread.
     *
     * @param format the clock; ApplyUserFormat reads the device setting now, and again when the locale changes. For an
     * unknown value, a message is written, and texts with a time of day are empty.
     */
    void setClockFormat(zel::utility::i18n::ClockFormat::Type format);

protected Q_SLOTS:
    /**
     * Sets the clock like setClockFormat(ClockFormat::Type), from a signal with an int. Call on the formatter's thread.
     *
     * @param format a value of ClockFormat::Type; for an unknown one, a message is written
     */
    void setClockFormat(int format);

private:
    std::unique_ptr<RelativeDateFormatterPrivate> d;
};

} // namespace zel::utility::i18n

#endif
