// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_EXAMPLEMOMENTS_H
#define ZEL_TOOL_EXAMPLEMOMENTS_H

#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QString>

namespace zel::tool {

/** A moment with its distance from the anchor, as text. */
struct ExampleMoment
{
    QString distance;
    QDateTime moment;
};

/**
 * Moments from long before an anchor to long after it. With an anchor around noon in the middle of a year, there is one
 * for each slot of the table.
 *
 * @param type a RelativeDateFormat::Type
 */
QList<ExampleMoment> exampleMoments(int type, const QDateTime& anchor);

/** An anchor with a moment for each slot. */
QDateTime exampleAnchor();

} // namespace zel::tool

#endif
