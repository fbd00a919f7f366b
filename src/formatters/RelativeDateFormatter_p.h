// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_FORMATTERS_RELATIVEDATEFORMATTER_P_H
#define ZEL_UTILITY_I18N_FORMATTERS_RELATIVEDATEFORMATTER_P_H

#include "relative/RelativeDateTable.h"
#include <memory>
#include <optional>
#include <QtCore/QDateTime>
#include <QtCore/QLocale>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <vector>
#include <zel/utility/i18n/ClockFormat.h>
#include <zel/utility/i18n/RelativeDateFormat.h>
#include <zel/utility/i18n/RelativeDateWording.h>

namespace zel::utility::i18n {

class DateOffsetRange;
class RelativeDateFormatter;
class RelativeDatePattern;

/** The table of a RelativeDateFormatter: ranges in the order in which they are tried, each with its pattern. */
class RelativeDateFormatterPrivate : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RelativeDateFormatterPrivate)

public:
    RelativeDateFormatterPrivate(RelativeDateFormatter* owner, RelativeDateFormat::Type requested);
    ~RelativeDateFormatterPrivate() override;

    /** The setters return whether the value changed. */
    bool setAnchorTime(const QDateTime& anchorTime);
    bool setLocale(const QLocale& locale);
    bool setClockFormat(zel::utility::i18n::ClockFormat::Type clockFormat);
    bool setWording(RelativeDateWording::Type wording);

    /** The text of a moment; a null string, with a message, on failure. */
    QString format(const QDateTime& dateTime) const;

    /** Deletes the replaced object, or keeps it while one of its calls is interrupted by a message handler. */
    void keepWhileInUse(std::unique_ptr<RelativeDateFormatterPrivate> previous);

    RelativeDateFormatter* q;
    RelativeDateFormat::Type type;
    RelativeDateTable table;
    QDateTime anchorTime;
    QLocale locale;
    ClockFormat::Type clockFormat = ClockFormat::ApplyUserFormat;
    RelativeDateWording::Type wording = RelativeDateWording::Exact;
    int count = 0;
    std::vector<std::unique_ptr<DateOffsetRange>> ranges;
    std::vector<std::unique_ptr<RelativeDatePattern>> patterns;
    unsigned int changes = 0; // of anchor, locale, clock and wording
    mutable int uses = 0;
    std::vector<std::unique_ptr<RelativeDateFormatterPrivate>> predecessors;

private:
    /** The text of the natural wording where it differs from the exact one. */
    std::optional<QString> naturalText(const QDateTime& dateTime) const;
};

} // namespace zel::utility::i18n

#endif
