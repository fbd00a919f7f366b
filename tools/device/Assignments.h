// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_ASSIGNMENTS_H
#define ZEL_TOOL_ASSIGNMENTS_H

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace zel::tool {

/** The settings of a device by their names on the command line, and their valid values. */
class Assignments
{
public:
    Assignments() = delete;

    static QString hourFormat() { return QStringLiteral("hour-format"); }
    static QString timeZone() { return QStringLiteral("time-zone"); }
    static QString region() { return QStringLiteral("region"); }
    static QStringList keys() { return {hourFormat(), timeZone(), region()}; }

    /** Throws a Failure if there is no such setting. */
    static void requireKey(const QString& key);

    /** The reason why a value is invalid; empty if it is valid. */
    static QString fault(const QString& key, const QString& value);

    /** The words KEY=VALUE for the key of a word that has one; otherwise KEY= for all keys. */
    static QStringList proposals(const QString& word);

    /** The checked values by key, from words of the form KEY=VALUE. */
    static QMap<QString, QString> parse(const QStringList& words);
};

} // namespace zel::tool

#endif
