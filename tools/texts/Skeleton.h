// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_SKELETON_H
#define ZEL_TOOL_SKELETON_H

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace zel::tool {

/** The skeleton among the words of a command. */
namespace Skeleton {

/** The first word; a Failure unless it has field letters only. */
QString from(const QStringList& words);

/** The help text about skeletons. */
QString description();

} // namespace Skeleton

} // namespace zel::tool

#endif
