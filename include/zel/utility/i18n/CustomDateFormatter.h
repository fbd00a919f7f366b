// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_CUSTOMDATEFORMATTER_H
#define ZEL_UTILITY_I18N_CUSTOMDATEFORMATTER_H

#include <memory>
#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <zel/utility/i18n/Global.h>

namespace zel::utility::i18n {

class CustomDateFormatterPrivate;

/**
 * Formats moments by an ICU skeleton in the user's region locale, and follows the device settings.
 *
 * A skeleton names the fields to show, in any order and without punctuation: "yMMMd" is year, abbreviated month and
 * day; "hm" is hour and minute. The locale determines their order and punctuation. The calendar is Gregorian; days
 * before 15 October 1582 are Julian. Three device settings matter:
 *
 * - Region: read by every call of format() and formatAll().
 * - Clock: both "h" and "H" show the hour under the device's 12-hour or 24-hour clock. A change arrives through the
 *   event loop of the formatter's thread; without an event loop the formatter keeps its clock.
 * - Time zone: a skeleton with a zone ("z", "v", in either case) shows the moment in the time zone of the device
 *   (default: GMT). Other skeletons show the date and time that the QDateTime holds, without conversion.
 *
 * Use a formatter only on the thread that created it; give each thread its own.
 *
 * A text is capitalized as in the middle of a sentence: French "lundi 3 septembre 2012". Where some languages expect a
 * capital first letter, for example in a list, the application has to add it.
 *
 * @code
 * #include <zel/utility/i18n/CustomDateFormatter.h>
 *
 * using namespace zel::utility::i18n;
 * const CustomDateFormatter formatter(QStringLiteral("yMMMdhm"));
 * const QString text = formatter.format(QDateTime::currentDateTime()); // Sep 3, 2012, 10:30 AM
 * @endcode
 */
class ZEL_UTILITY_I18N_EXPORT CustomDateFormatter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString skeleton READ skeleton WRITE setSkeleton)
    Q_DISABLE_COPY_MOVE(CustomDateFormatter)

public:
    /**
     * Creates a formatter for the user's region locale. It belongs to the calling thread, which may be any thread.
     *
     * If ICU cannot build a pattern from the skeleton, a message is written and isValid() returns false.
     *
     * @param skeleton letters of an ICU date/time skeleton, for example "yMMMd"
     * @param parent the owner, or null
     */
    explicit CustomDateFormatter(const QString& skeleton, QObject* parent = nullptr);
    ~CustomDateFormatter() override;

    /**
     * Returns whether the formatter has a pattern; once true, it stays true. Call on the formatter's thread.
     *
     * ICU ignores characters that are not fields: a formatter for "" or "???" is valid, and its texts are empty.
     */
    Q_INVOKABLE bool isValid() const;

    /**
     * Returns the skeleton that was set last, even if ICU could not build a pattern from it. Cannot fail. Call on the
     * formatter's thread.
     */
    QString skeleton() const;

    /**
     * Formats a moment in the user's current region locale. Call on the formatter's thread.
     *
     * @param dateTime the moment; an invalid one is formatted as the start of 1970
     * @return the text; a null string, with a message, if the formatter is not valid or ICU cannot format the moment
     */
    Q_INVOKABLE QString format(const QDateTime& dateTime) const;

    /**
     * Formats many moments in the user's current region locale. The texts and messages are those of one format() call
     * for each moment, in order, at a fraction of the cost.
     *
     * Region, clock and time zone are read once. The call blocks and cannot be cancelled. It needs memory only
     * for the texts, and keeps nothing afterwards. Call on the formatter's thread.
     *
     * @param dateTimes the moments, as for format()
     * @return one text for each moment; a null string where format() would return one
     */
    QStringList formatAll(const QList<QDateTime>& dateTimes) const;

public Q_SLOTS:
    /**
     * Sets the skeleton; an equal one changes nothing. The locale remains the user's region locale. Call on the
     * formatter's thread.
     *
     * If ICU cannot build a pattern, the skeleton is stored, a message is written, and the previous pattern stays in
     * use.
     *
     * @param skeleton letters of an ICU date/time skeleton
     */
    void setSkeleton(const QString& skeleton);

private:
    std::unique_ptr<CustomDateFormatterPrivate> d;
};

} // namespace zel::utility::i18n

#endif
