#ifndef ZEL_UTILITY_I18N_FORMATTERS_RELATIVEDATEBATCH_H
#define ZEL_UTILITY_I18N_FORMATTERS_RELATIVEDATEBATCH_H

#include "relative/RelativeDateTable.h"
#include "relative/RelativeDistance.h"
#include <map>
#include <memory>
#include <optional>
#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <unicode/smpdtfmt.h>

namespace zel::utility::i18n {

class RelativeDateFormatterPrivate;
class RelativeDatePattern;
class ResourceFormatter;

/**
 * Formats many moments with ICU objects that are made once, when the first moment needs them, and go with the batch.
 * It writes no messages: where anything fails, it has no text, and RelativeDateFormatter::format() has the last word.
 */
class RelativeDateBatch
{
public:
    explicit RelativeDateBatch(const RelativeDateFormatterPrivate& formatter);
    ~RelativeDateBatch();
    Q_DISABLE_COPY_MOVE(RelativeDateBatch)

    /** The text of a moment; none if it is to be formatted on its own. */
    std::optional<QString> format(const QDateTime& dateTime);

private:
    using Step = RelativeDateTable::Step;

    const QString& phrase(const Step& step);
    QString makePhrase(const Step& step);
    std::optional<QString> dated(const Step& step, qint64 reading);
    std::unique_ptr<icu::SimpleDateFormat> makeFormat(const Step& step) const;
    const RelativeDatePattern& patternOf(const Step& step) const;

    const RelativeDateFormatterPrivate& m_formatter;
    qint64 m_anchor;
    bool m_usable;
    std::map<int, std::unique_ptr<ResourceFormatter>> m_resources; // by slot
    std::map<std::pair<int, int>, QString> m_phrases;              // by slot and count, empty where there is none
    std::map<std::pair<int, int>, std::unique_ptr<icu::SimpleDateFormat>> m_formats; // null where there is none
};

} // namespace zel::utility::i18n

#endif
