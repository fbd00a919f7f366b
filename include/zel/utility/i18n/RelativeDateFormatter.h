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
 * The table is chosen by the calendar distance between moment and anchor:
 *
 * | distance                     | TimeCritical        | NonTimeCritical |
 * | ---------------------------- | ------------------- | --------------- |
 * | another calendar year        | November 2011       | November 2011   |
 * | four or more calendar days   | Aug 28              | Aug 28          |
 * | two or three calendar days   | Sat 10:30           | Saturday        |
 * | the day before or after      | yesterday 10:30     | yesterday       |
 * | an hour or more, same day    | 3 hours ago         | today           |
 * | less                         | 5 minutes ago       | today           |
 *
 * - The anchor is the time of construction until it is set. It does not advance by itself; see validUntil().
 * - Moment and anchor count by the date and time that each QDateTime shows, whatever its time zone. Convert both to one
 *   zone first: with an anchor of 10:30 UTC, 12:30 in Berlin is the same instant but reads "in 2 hours".
 * - With RelativeDateWording::Exact, the default, another calendar year comes first: on 1 January, two minutes ago may
 *   read "December 2012".
 * - Locale and clock are the user's at construction until they are set. A later change on the device does not change a
 *   formatter: call applyUserRegionLocale() or create another one.
 * - A text follows the spelling rules for the middle of a sentence. Alone, for example in a list, it may need a capital
 *   first letter, which the application adds.
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
     * Creates a formatter that belongs to the calling thread, any thread. Anchor: now; locale: the user's region
     * locale; clock: ClockFormat::ApplyUserFormat; wording: RelativeDateWording::Exact.
     *
     * @param type the formatting table; with an unknown one, a message is written and format() fails until setType()
     * @param parent the owner, or null
     */
    explicit RelativeDateFormatter(RelativeDateFormat::Type type, QObject* parent = nullptr);
    ~RelativeDateFormatter() override;

    /** Returns the formatting table, also an unknown one that was set. Cannot fail. Call on the formatter's thread. */
    RelativeDateFormat::Type type() const;

    /**
     * Sets the formatting table. Another table resets anchor, locale, clock and wording to those of a new formatter and
     * emits changed(); the same one does nothing. Call on the formatter's thread.
     *
     * @param type the formatting table; with an unknown one, a message is written and format() fails until the next
     * setType()
     */
    void setType(RelativeDateFormat::Type type);

    /**
     * Returns the locale of the texts: the one that was set last, or the user's region locale at the last reset. Cannot
     * fail. Call on the formatter's thread.
     */
    QLocale locale() const;

    /**
     * Sets the locale of the texts and emits changed(); the same locale does nothing. Call on the formatter's thread.
     *
     * @param locale the locale; QLocale::c() counts as English. A part that ICU has no data for comes from the parent
     * locale; if ICU cannot build a pattern, a message is written and texts are empty.
     */
    void setLocale(const QLocale& locale);

    /** Returns the moment that distances are counted from. Cannot fail. Call on the formatter's thread. */
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
     * Sets the wording and emits changed(); the same wording does nothing. Call on the formatter's thread.
     *
     * @param wording the wording; an unknown value means Exact
     */
    void setWording(RelativeDateWording::Type wording);

    /**
     * Formats a moment relative to the anchor, in the formatter's locale. Call on the formatter's thread.
     *
     * @param dateTime the moment; an invalid one counts as 1970-01-01 00:00
     * @return the text; a null string, with a message, if the type is unknown or ICU cannot format the moment
     */
    Q_INVOKABLE QString format(const QDateTime& dateTime) const;

    /**
     * Formats many moments: the texts and messages of one format() call each, in order, at a fraction of the cost.
     *
     * The call blocks and cannot be cancelled. It needs memory for the texts only, and nothing is kept afterwards. Call
     * on the formatter's thread.
     *
     * @param dateTimes the moments, as for format()
     * @return one text for each moment; a null string where format() would return one
     */
    QStringList formatAll(const QList<QDateTime>& dateTimes) const;

    /**
     * Returns the first anchor time after the present one at which the text of a moment may change: format it again
     * then, not before. Changes of the zone's offset (daylight saving time) are included. Call on the formatter's
     * thread.
     *
     * @param dateTime the moment, in the years 1 to 9999
     * @return a time in the anchor's time zone; an invalid one if the text never changes again, if the moment or the
     * anchor is invalid or outside the years 1 to 9999, or if the type is unknown
     */
    QDateTime validUntil(const QDateTime& dateTime) const;

    /**
     * Calls a slot or signal of a receiver whenever the user's clock, region or time zone changes, while both objects
     * exist: texts may be out of date then. The formatter keeps its own locale and clock. Calls arrive through the
     * event loop of the formatter's thread. Call on that thread.
     *
     * @param receiver the object to call
     * @param member the slot or signal without arguments, in SLOT() or SIGNAL()
     * @return false, with a message by Qt, if the receiver has no such member
     */
    bool connectToSettings(QObject* receiver, const char* member);

    ZEL_UTILITY_I18N_SIGNALS
    /** Anchor, locale, clock, wording or type changed: format texts again. Emitted on the calling thread. */
    Q_SIGNAL void changed();

public Q_SLOTS:
    /**
     * Sets the moment that distances are counted from and emits changed(). An equal instant does nothing, even in
     * another time zone. Call on the formatter's thread.
     *
     * @param anchorTime the anchor; it counts by the date and time that it shows. An invalid one counts as
     * 1970-01-01 00:00.
     */
    void setAnchorTime(const QDateTime& anchorTime);

    /** Sets the anchor to the current local time, as setAnchorTime() does. Call on the formatter's thread. */
    void applyCurrentTimeAsAnchor();

    /**
     * Sets the locale to the user's region locale as it is now, and emits changed() if it is another one. Where the
     * region is not set, it is the locale of the process's environment. Call on the formatter's thread.
     */
    void applyUserRegionLocale();

    /**
     * Sets the clock and emits changed(); the same value does nothing. Call on the formatter's thread.
     *
     * @param format the clock; ApplyUserFormat reads the device setting once, now and again when the locale changes.
     * With an unknown value, a message is written and texts with a time of day are empty.
     */
    void setClockFormat(zel::utility::i18n::ClockFormat::Type format);

protected Q_SLOTS:
    /** The same for signals that carry a number. Call on the formatter's thread. */
    void setClockFormat(int format);

private:
    std::unique_ptr<RelativeDateFormatterPrivate> d;
};

} // namespace zel::utility::i18n

#endif
