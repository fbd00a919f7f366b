// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_QML_RELATIVEDATE_H
#define ZEL_QML_RELATIVEDATE_H

#include "DateText.h"
#include <QtCore/QLocale>
#include <zel/utility/i18n/ClockFormat.h>
#include <zel/utility/i18n/RelativeDateFormat.h>
#include <zel/utility/i18n/RelativeDateWording.h>

namespace zel::utility::i18n::qml {

/**
 * A moment relative to now: "5 minutes ago", later "6 minutes ago".
 *
 * @code
 * RelativeDate { id: sent; moment: model.date }
 * Label { text: sent.text }
 * @endcode
 */
class RelativeDate : public zel::utility::i18n::qml::DateText // in full for the type registration of Qt 6.4
{
    Q_OBJECT
    QML_ELEMENT

    /** The granularity. Default: TimeCritical. */
    Q_PROPERTY(Table table READ table WRITE setTable NOTIFY tableChanged FINAL)
    /** The locale of the text, as from Qt.locale(). Default: the user's region locale, which is followed. */
    Q_PROPERTY(QLocale locale READ locale WRITE setLocale RESET resetLocale NOTIFY localeChanged FINAL)
    /** The clock of times in the text. Default: ApplyUserFormat. */
    Q_PROPERTY(Clock clockFormat READ clockFormat WRITE setClockFormat NOTIFY clockFormatChanged FINAL)
    /** The wording. Default: Natural. */
    Q_PROPERTY(Wording wording READ wording WRITE setWording NOTIFY wordingChanged FINAL)
    /** The moment counted from. Default: now; the text is updated when it expires. */
    Q_PROPERTY(QDateTime anchor READ anchor WRITE setAnchor RESET resetAnchor NOTIFY anchorChanged FINAL)
    /** The first anchor at which the text may change; an invalid date if it never changes. */
    Q_PROPERTY(QDateTime validUntil READ validUntil NOTIFY validUntilChanged FINAL)

public:
    /** The granularity of texts. */
    enum Table : int {
        TimeCritical = RelativeDateFormat::TimeCritical,      ///< down to minutes: messages, calls
        NonTimeCritical = RelativeDateFormat::NonTimeCritical ///< days and coarser: files, notes
    };
    Q_ENUM(Table)

    /** The clock that a text shows. */
    enum Clock : int {
        ApplyUserFormat = ClockFormat::ApplyUserFormat,     ///< the clock setting of the user, which is followed
        ApplyLocaleFormat = ClockFormat::ApplyLocaleFormat, ///< the clock customary in the locale
        Use12hourClock = ClockFormat::Use12hourClock,       ///< 12 hours, with AM and PM
        Use24hourClock = ClockFormat::Use24hourClock        ///< 24 hours
    };
    Q_ENUM(Clock)

    /** The wording of texts. */
    enum Wording : int {
        Exact = RelativeDateWording::Exact,    ///< every count is written: "in 0 minutes"
        Natural = RelativeDateWording::Natural ///< "now", and "yesterday" across the turn of the year, too
    };
    Q_ENUM(Wording)

    using DateText::DateText;

    Table table() const { return m_table; }
    void setTable(Table table);

    QLocale locale() const;
    void setLocale(const QLocale& locale);
    void resetLocale();

    Clock clockFormat() const { return m_clockFormat; }
    void setClockFormat(Clock clockFormat);

    Wording wording() const { return m_wording; }
    void setWording(Wording wording);

    QDateTime anchor() const { return m_anchor.toLocalTime(); }
    void setAnchor(const QDateTime& anchor);
    void resetAnchor() { setAnchor({}); }

    QDateTime validUntil();

    QDateTime fixedAnchor() const override { return m_anchor; }
    void classBegin() override;

Q_SIGNALS:
    void tableChanged();
    void localeChanged();
    void clockFormatChanged();
    void wordingChanged();
    void anchorChanged();
    void validUntilChanged();

protected:
    std::shared_ptr<TextSource> createSource() override;
    QDateTime prepared(const QDateTime& moment) const override;
    void onValidityChanged() override { Q_EMIT validUntilChanged(); }

private Q_SLOTS:
    void onRegionChanged();

private:
    template <typename Value>
    void choose(const char* property, Value& current, Value value, void (RelativeDate::*changed)());

    Table m_table = TimeCritical;
    std::optional<QLocale> m_locale;
    Clock m_clockFormat = ApplyUserFormat;
    Wording m_wording = Natural;
    QDateTime m_anchor; // in UTC, as the moment
};

} // namespace zel::utility::i18n::qml

#endif
