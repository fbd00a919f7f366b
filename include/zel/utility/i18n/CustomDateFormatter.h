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
 * Formats moments by an ICU skeleton and follows the device while it lives.
 *
 * A skeleton names the fields to show, in any order and without punctuation: "yMMMd" is year, abbreviated month and
 * day; "hm" is hour and minute. The text is that of the user's region locale in the Gregorian calendar; days before
 * 15 October 1582 are those of the Julian calendar. Three settings of the device shape it:
 *
 * - the clock: in a skeleton with hours, "h" and "H" become the letter of the device's 12-hour or 24-hour clock. A
 *   change arrives through the event loop of the thread that created the formatter;
 * - the region: looked at on every format();
 * - the time zone: a skeleton with a zone ("z", "v", in either case) shows the moment in the zone of the device.
 * Without one, the date and time are shown as the QDateTime holds them, never converted.
 *
 * A formatter belongs to the thread that created it and is used there only; different threads use formatters of their
 * own.
 *
 * @code
 * #include <zel/utility/i18n/CustomDateFormatter.h>
 *
 * using namespace zel::utility::i18n;
 * const CustomDateFormatter formatter(QStringLiteral("yMMMdhm"));
 * const QString text = formatter.format(QDateTime::currentDateTime()); // May 16, 2012, 10:30 AM
 * @endcode
 */
class ZEL_UTILITY_I18N_EXPORT CustomDateFormatter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString skeleton READ skeleton WRITE setSkeleton)
    Q_DISABLE_COPY_MOVE(CustomDateFormatter)

public:
    /**
     * Creates a formatter for a skeleton.
     *
     * @param skeleton letters of an ICU date/time skeleton, for example "yMMMd"
     * @param parent the owner, or null
     */
    explicit CustomDateFormatter(const QString& skeleton, QObject* parent = nullptr);
    ~CustomDateFormatter() override;

    /**
     * True once a pattern could be made of a skeleton; it stays true from then on. ICU ignores what is not a field: a
     * formatter for the skeleton "" or "???" is valid, and its texts are empty.
     */
    Q_INVOKABLE bool isValid() const;

    /** The skeleton as it was set last, also when no pattern could be made of it. */
    QString skeleton() const;

    /**
     * The text for a moment.
     *
     * @param dateTime the moment; an invalid one is taken as a moment about the start of 1970
     * @return the text; a null string, with a message, when the formatter is not valid or ICU cannot format the moment
     */
    Q_INVOKABLE QString format(const QDateTime& dateTime) const;

    /**
     * The texts that format() would give for many moments one by one, in order and with the same messages. Region,
     * clock and time zone are read once. Nothing is kept afterwards. The call cannot be cancelled and blocks its
     * thread.
     *
     * @param dateTimes the moments, as for format()
     * @return as many texts; a null string where format() would return one
     */
    QStringList formatAll(const QList<QDateTime>& dateTimes) const;

public Q_SLOTS:
    /**
     * Changes the skeleton. One of which ICU can make no pattern is kept as the skeleton, with a message, while the
     * pattern before it stays in use.
     */
    void setSkeleton(const QString& skeleton);

private:
    std::unique_ptr<CustomDateFormatterPrivate> d;
};

} // namespace zel::utility::i18n

#endif
