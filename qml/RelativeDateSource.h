// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_QML_RELATIVEDATESOURCE_H
#define ZEL_QML_RELATIVEDATESOURCE_H

#include "TextSource.h"
#include <zel/utility/i18n/RelativeDateFormatter.h>

namespace zel::utility::i18n::qml {

/** What determines the text of a relative date besides the moment and the anchor. */
struct RelativeDateStyle
{
    RelativeDateFormat::Type table = RelativeDateFormat::TimeCritical;
    QLocale locale;
    ClockFormat::Type clockFormat = ClockFormat::ApplyUserFormat;
    RelativeDateWording::Type wording = RelativeDateWording::Natural;

    bool operator==(const RelativeDateStyle& other) const;
};

/** The texts of relative dates in one style. */
class RelativeDateSource : public TextSource
{
public:
    explicit RelativeDateSource(const RelativeDateStyle& style);

    const RelativeDateStyle& key() const { return m_style; }

    /**
     * The wall-clock reading of a moment, as a time in UTC. The formatter only compares such readings, and in UTC they
     * are cheap. Where a reading is converted to a time, the time zone counts again.
     */
    static QDateTime reading(const QDateTime& dateTime);

    /** The moments are readings, the anchor is a time. Changes of the zone's offset are ignored. */
    QList<DatedText> texts(const QList<QDateTime>& moments, const QDateTime& anchor) override;

    /** The answer of RelativeDateFormatter::validUntil(). */
    QDateTime validUntil(const QDateTime& moment, const QDateTime& anchor);

private:
    void setAnchor(const QDateTime& anchor);

    RelativeDateStyle m_style;
    RelativeDateFormatter m_formatter;
};

} // namespace zel::utility::i18n::qml

#endif
