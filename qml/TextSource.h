// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_QML_TEXTSOURCE_H
#define ZEL_QML_TEXTSOURCE_H

#include <limits>
#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QString>

namespace zel::utility::i18n::qml {

/** A text, and the time in ms since the epoch at which it may be another one. */
struct DatedText
{
    static constexpr qint64 never = std::numeric_limits<qint64>::max();

    QString text;
    qint64 validUntil = never;
};

/** Makes the texts of all elements that share its settings. */
class TextSource
{
    Q_DISABLE_COPY_MOVE(TextSource)

public:
    TextSource() = default;
    virtual ~TextSource() = default;

    /** The texts of many moments as of an anchor time, in order. */
    virtual QList<DatedText> texts(const QList<QDateTime>& moments, const QDateTime& anchor) = 0;
};

} // namespace zel::utility::i18n::qml

#endif
