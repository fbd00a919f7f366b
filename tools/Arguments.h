// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_ARGUMENTS_H
#define ZEL_TOOL_ARGUMENTS_H

#include <QtCore/QCommandLineParser>
#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QLocale>
#include <QtCore/QMap>
#include <QtCore/QStringList>

namespace zel::tool {

class MomentReader;

/** A locale with the name that the user gave it. */
struct NamedLocale
{
    QString name;
    QLocale locale;
};

/** The parsed and checked words after a command. Invalid ones are a Failure. */
class Arguments
{
public:
    /** @param words the words after the name of the command */
    Arguments(const QList<QCommandLineOption>& options, const QStringList& words);

    /** The words that are not options. */
    QStringList positional() const;

    bool has(const QString& option) const { return m_parser.isSet(option); }
    bool json() const { return has(QStringLiteral("json")); }

    /** The value of an option; a Failure if it was given more than once. */
    QString value(const QString& option) const;
    int number(const QString& option, int fallback, int largest) const;
    QDateTime moment(const QString& option, const MomentReader& reader, const QDateTime& fallback) const;
    /** The choice with the given name; the fallback if the option was not given. */
    int choice(const QString& option, const QMap<QString, int>& choices, int fallback) const;

    /** The locales of --locale (default: region of the device). */
    QList<NamedLocale> locales() const;
    /** The same for a command with one locale. */
    NamedLocale locale() const;

private:
    QCommandLineParser m_parser;
};

} // namespace zel::tool

#endif
