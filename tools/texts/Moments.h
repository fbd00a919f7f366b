// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_MOMENTS_H
#define ZEL_TOOL_MOMENTS_H

#include "terminal/Failure.h"
#include "texts/MomentReader.h"
#include <functional>
#include <QtCore/QDateTime>
#include <QtCore/QStringList>

namespace zel::tool {

class Console;

/** The moments of a command: its words, the lines of standard input for the single word "-", or now. */
class Moments
{
public:
    using Formatter = std::function<QStringList(const QList<QDateTime>&)>;
    using Writer = std::function<void(const QDateTime&, const QString&)>;

    Moments(const QStringList& words, const MomentReader& reader);

    /**
     * Formats all moments and passes each text to the writer. All words are parsed before the first is formatted; lines
     * are handled by LineAnswers.
     */
    ExitStatus format(Console& console, bool json, const Formatter& formatter, const Writer& writer) const;

private:
    MomentReader m_reader;
    bool m_fromInput;
    QList<QDateTime> m_moments;
};

} // namespace zel::tool

#endif
