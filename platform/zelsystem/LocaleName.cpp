// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include <zel/system/LocaleName.h>

#include <memory>
#include <QtCore/QHash>
#include <QtCore/QRegularExpression>
#include <utility>

namespace zel::system {

namespace {

constexpr int longestName = 100;

// Never destroyed: texts may be formatted while the process destroys its static objects.
template <typename Object, typename... Arguments>
const Object* lasting(Arguments&&... arguments)
{
    return std::make_unique<Object>(std::forward<Arguments>(arguments)...).release();
}

struct Parts
{
    QString language;
    QString script;
    QString territory;
};

std::optional<Parts> split(const QString& name)
{
    // Language, script, territory, variants, extensions; then codeset and modifier of a POSIX name.
    static const auto& form =
        *lasting<QRegularExpression>(QStringLiteral("\\A([a-z]{2,3})(?:[-_]([a-z]{4}))?(?:[-_]([a-z]{2}|[0-9]{3}))?"
                                                    "(?:[-_](?:[a-z0-9]{5,8}|[0-9][a-z0-9]{3}))*"
                                                    "(?:-[a-z0-9](?:-[a-z0-9]{2,8})+)*"
                                                    "(?:\\.[a-z0-9-]+)?(?:@([a-z]+))?\\z"),
                                     QRegularExpression::CaseInsensitiveOption);
    using Scripts = QHash<QString, QString>;
    static const auto& modifierScripts = *lasting<Scripts>(Scripts{
        {QStringLiteral("latin"), QStringLiteral("Latn")},
        {QStringLiteral("cyrillic"), QStringLiteral("Cyrl")},
        {QStringLiteral("devanagari"), QStringLiteral("Deva")},
    });
    if (name.size() > longestName) {
        return {};
    }
    const QRegularExpressionMatch match = form.match(name);
    if (!match.hasMatch()) {
        return {};
    }
    QString script = match.captured(2).toLower();
    if (script.isEmpty()) {
        script = modifierScripts.value(match.captured(4).toLower());
    } else {
        script[0] = script[0].toUpper();
    }
    return Parts{match.captured(1).toLower(), script, match.captured(3).toUpper()};
}

QString join(const Parts& parts)
{
    QString name = parts.language;
    for (const QString& part : {parts.script, parts.territory}) {
        if (!part.isEmpty()) {
            name += QLatin1Char('_') + part;
        }
    }
    return name;
}

// Not every Qt version has script codes. These scripts are shared by several languages. Any other script belongs to one
// language, so it is enough to check that the locale's script is none of these.
bool hasScript(const QLocale& locale, const QString& code)
{
    using Scripts = QHash<QString, QLocale::Script>;
    static const auto& shared = *lasting<Scripts>(Scripts{
        {QStringLiteral("Arab"), QLocale::ArabicScript},
        {QStringLiteral("Cyrl"), QLocale::CyrillicScript},
        {QStringLiteral("Deva"), QLocale::DevanagariScript},
        {QStringLiteral("Hans"), QLocale::SimplifiedHanScript},
        {QStringLiteral("Hant"), QLocale::TraditionalHanScript},
        {QStringLiteral("Latn"), QLocale::LatinScript},
    });
    return shared.key(locale.script()) == (shared.contains(code) ? code : QString());
}

bool isC(const QString& name)
{
    const QString base = name.section(QLatin1Char('.'), 0, 0);
    return base == QLatin1String("C") || base == QLatin1String("POSIX");
}

} // namespace

std::optional<QLocale> LocaleName::find(const QString& name)
{
    if (isC(name)) {
        return QLocale::c();
    }
    const std::optional<Parts> parts = split(name);
    if (!parts) {
        return {};
    }
    const QLocale locale(join(*parts));
    const bool found = locale.language() != QLocale::C &&
                       (parts->script.isEmpty() || hasScript(locale, parts->script)) &&
                       (parts->territory.isEmpty() || locale.name().section(QLatin1Char('_'), 1) == parts->territory);
    return found ? std::make_optional(locale) : std::nullopt;
}

QLocale LocaleName::closest(const QString& name)
{
    const std::optional<QLocale> exact = find(name);
    return exact ? *exact : QLocale(name);
}

// In the order in which the C library looks at them.
const char* LocaleName::variable()
{
    for (const char* const variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        if (!qEnvironmentVariableIsEmpty(variable)) {
            return variable;
        }
    }
    return nullptr;
}

} // namespace zel::system
