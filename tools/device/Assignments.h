// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_ASSIGNMENTS_H
#define ZEL_TOOL_ASSIGNMENTS_H

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace zel::tool {

/** The settings of a device by their names on the command line, and their valid values. */
namespace Assignments {

QString hourFormat();
QString timeZone();
QString region();
QStringList keys();

/** Throws a Failure if there is no such setting. */
void requireKey(const QString& key);

/** The reason why a value is invalid; empty if it is valid. */
QString error(const QString& key, const QString& value);

/** The words KEY=VALUE for the key of a word that has one; otherwise KEY= for all keys. */
QStringList proposals(const QString& word);

/** The checked values by key, from words of the form KEY=VALUE. */
QMap<QString, QString> parse(const QStringList& words);

} // namespace Assignments

} // namespace zel::tool

#endif
