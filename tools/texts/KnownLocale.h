// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_KNOWNLOCALE_H
#define ZEL_TOOL_KNOWNLOCALE_H

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace zel::tool {

/** A locale that --locale accepts, with the names by which a user may search for it. */
class KnownLocale
{
public:
    /** The names of all locales that ICU and Qt have, in alphabetical order. */
    static QStringList names();

    explicit KnownLocale(const QString& name) : m_name(name) {}

    const QString& name() const { return m_name; }
    /** The title in English, such as "German (Germany)". */
    QString englishTitle() const;
    /** The title in the language of the locale. */
    QString nativeTitle() const;
    /** The code of the script, such as "Latn"; the usual script of the language where the name has none. */
    QString script() const;

    /**
     * Whether the phrases of relative dates are those of the language: "own", "some", or "none". The others are those
     * of ICU's root bundle, such as "+5 min".
     */
    QString phrases() const;

private:
    QString m_name;
};

} // namespace zel::tool

#endif
