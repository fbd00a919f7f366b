// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "commands/Commands.h"

#include "Arguments.h"
#include "terminal/Console.h"
#include "terminal/Table.h"
#include "texts/KnownLocale.h"
#include <algorithm>
#include <QtCore/QRegularExpression>

namespace zel::tool {

namespace {

QRegularExpression formOf(const QString& pattern)
{
    QString form = QRegularExpression::escape(pattern);
    form.replace(QLatin1String("\\*"), QLatin1String(".*")).replace(QLatin1String("\\?"), QLatin1String("."));
    return QRegularExpression(QLatin1String(R"((?<![\p{L}\p{M}\p{N}]))") + form,
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::UseUnicodePropertiesOption);
}

bool matches(const KnownLocale& locale, const QRegularExpression& form)
{
    QString tag = locale.name();
    tag.replace(QLatin1Char('_'), QLatin1Char('-'));
    const QStringList names = {locale.name(), tag, locale.englishTitle(), locale.nativeTitle()};
    return std::any_of(names.begin(), names.end(), [&](const QString& name) { return name.contains(form); });
}

QList<KnownLocale> localesFor(const QString& pattern)
{
    const QRegularExpression form = formOf(pattern);
    QList<KnownLocale> locales;
    for (const QString& name : KnownLocale::names()) {
        const KnownLocale locale(name);
        if (matches(locale, form)) {
            locales.append(locale);
        }
    }
    return locales;
}

void writeJson(const QList<KnownLocale>& locales, Console& console)
{
    for (const KnownLocale& locale : locales) {
        console.json({{QStringLiteral("locale"), locale.name()},
                      {QStringLiteral("english"), locale.englishTitle()},
                      {QStringLiteral("native"), locale.nativeTitle()},
                      {QStringLiteral("script"), locale.script()},
                      {QStringLiteral("phrases"), locale.phrases()}});
    }
}

void writeTable(const QList<KnownLocale>& locales, Console& console)
{
    Table table;
    table.add({QStringLiteral("locale"), QStringLiteral("script"), QStringLiteral("phrases"),
               QStringLiteral("English name"), QStringLiteral("own name")});
    for (const KnownLocale& locale : locales) {
        table.add({locale.name(), locale.script(), locale.phrases(), locale.englishTitle(), locale.nativeTitle()});
    }
    table.write(console);
}

// `locales`: the locales of ICU and Qt.
class LocalesCommand : public Command
{
public:
    CommandHelp help() const override;
    bool takesDevice() const override { return false; }
    ExitStatus run(const Arguments& arguments, Console& console) const override;
};

} // namespace

CommandHelp LocalesCommand::help() const
{
    return {
        QStringLiteral("locales"), QStringLiteral("[PATTERN]"), QStringLiteral("List the locales."),
        QStringLiteral("Lists the locales for --locale: name, script, phrases, and the names in English and in the\n"
                       "language of the locale. With PATTERN, lists only locales with a name in which a word begins\n"
                       "with it; '*' and '?' are wildcards. Case is ignored.\n\n"
                       "The phrases are those of relative dates: 'own' if all are in the language of the locale,\n"
                       "'some' if the others come from ICU's root bundle (\"+5 min\"), 'none' if all do."),
        QStringLiteral("locales\n"
                       "locales german\n"
                       "locales zh-TW\n"
                       "locales --json")};
}

ExitStatus LocalesCommand::run(const Arguments& arguments, Console& console) const
{
    const QStringList words = arguments.positional();
    if (words.size() > 1) {
        throw Failure::usage(QStringLiteral("one pattern at most, not also ") + quoted(words.at(1)));
    }
    const QList<KnownLocale> locales = localesFor(words.value(0));
    if (locales.isEmpty()) {
        throw Failure(QStringLiteral("no locale matches ") + quoted(words.value(0)));
    }
    if (arguments.json()) {
        writeJson(locales, console);
    } else {
        writeTable(locales, console);
    }
    return Worked;
}

std::unique_ptr<Command> localesCommand()
{
    return std::make_unique<LocalesCommand>();
}

} // namespace zel::tool
