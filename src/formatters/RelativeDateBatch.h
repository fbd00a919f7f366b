// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_FORMATTERS_RELATIVEDATEBATCH_H
#define ZEL_UTILITY_I18N_FORMATTERS_RELATIVEDATEBATCH_H

#include "relative/RelativeDateTable.h"
#include "relative/RelativeDistance.h"
#include <memory>
#include <optional>
#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <unicode/calendar.h>
#include <unicode/smpdtfmt.h>
#include <unordered_map>
#include <vector>

namespace zel::utility::i18n {

class RelativeDateFormatterPrivate;
class RelativeDatePattern;
class ResourceFormatter;

/**
 * Formats many moments with ICU objects that are created once, on first use, and destroyed with the batch. It writes no
 * messages: where anything fails it returns no text, and the caller uses RelativeDateFormatter::format().
 */
class RelativeDateBatch
{
    Q_DISABLE_COPY_MOVE(RelativeDateBatch)

public:
    explicit RelativeDateBatch(const RelativeDateFormatterPrivate& formatter);
    ~RelativeDateBatch();

    /** The text of a moment; none if the moment must be formatted alone. */
    std::optional<QString> format(const QDateTime& dateTime);

private:
    using Step = RelativeDateTable::Step;

    /** A date format with the calendar that it reads, so that it does not copy one for each text. */
    struct Format
    {
        std::unique_ptr<icu::SimpleDateFormat> format; // null if there is none
        std::unique_ptr<icu::Calendar> calendar;
    };

    /** What the texts of a slot need, kept for the next text; the maps are by count. */
    struct SlotCache
    {
        const RelativeDatePattern* pattern;
        bool isPhraseAlone;
        std::unique_ptr<ResourceFormatter> resource;
        std::unordered_map<int, QString> phrases; // empty where there is none
        std::unordered_map<int, Format> formats;
    };

    SlotCache& cacheOf(const Step& step);
    const QString& phrase(const Step& step);
    QString makePhrase(const Step& step);
    std::optional<QString> dated(const Step& step, qint64 reading);
    Format makeFormat(const Step& step);

    const RelativeDateFormatterPrivate& m_formatter;
    qint64 m_anchor;
    bool m_usable;
    std::vector<SlotCache> m_caches;
};

} // namespace zel::utility::i18n

#endif
