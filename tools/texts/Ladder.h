// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_LADDER_H
#define ZEL_TOOL_LADDER_H

#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QString>

namespace zel::tool {

/** A distance from the anchor, and the moment at that distance. */
struct Rung
{
    QString distance;
    QDateTime moment;
};

/**
 * Moments from long before an anchor to long after it. With an anchor around noon in the middle of a year, there is one
 * for each slot of the table.
 */
class Ladder
{
public:
    Ladder() = delete;

    /** @param type a RelativeDateFormat::Type */
    static QList<Rung> rungs(int type, const QDateTime& anchor);

    /** An anchor with a moment for each slot. */
    static QDateTime exampleAnchor() { return {QDate(2012, 9, 3), QTime(10, 30)}; }
};

} // namespace zel::tool

#endif
