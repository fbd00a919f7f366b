// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Takes arbitrary text as a date pattern: translates it, searches it and inserts a phrase. The results are compared
// with simple implementations of the same rules.

#include "Require.h"

#include "bridge/String.h"
#include "patterns/FormattingPrivate.h"
#include "relative/RelativeDate.h"
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <string>

using namespace zel::utility::i18n;

namespace {

constexpr QLatin1Char apostrophe('\'');
constexpr std::size_t longestPhrase = 16;

// The Qt field for a run of a letter; null if Qt has none.
QString plainField(QChar letter, int run)
{
    const auto atMost = [run](int longest, char text) { return QString(std::min(run, longest), QLatin1Char(text)); };
    switch (letter.unicode()) {
    case 'y':
        return QString(run == 2 ? 2 : 4, letter);
    case 'M':
    case 'L':
        return atMost(4, 'M');
    case 'E':
        return run < 4 ? QStringLiteral("ddd") : QStringLiteral("dddd");
    case 'c':
        return run < 3 ? QString() : atMost(4, 'd');
    case 'e':
        return run != 3 ? QString() : QStringLiteral("ddd");
    case 'H':
    case 'h':
        return atMost(2, 'h');
    case 'd':
    case 'm':
    case 's':
        return atMost(2, letter.toLatin1());
    case 'S':
        return run == 1 ? QStringLiteral("z") : QStringLiteral("zzz");
    case 'a':
        return QStringLiteral("AP");
    default:
        break;
    }
    if (QStringLiteral("zZvV").contains(letter)) {
        return QStringLiteral("t");
    }
    return QStringLiteral("GYuQqwWDFgAkK").contains(letter) ? QString() : QString(run, letter);
}

QString plainTranslation(QString rest)
{
    QString result;
    while (!rest.isEmpty()) {
        const QChar first = rest.at(0);
        if (first == apostrophe) {
            const QString text = rest.mid(1).section(apostrophe, 0, 0);
            result += apostrophe + text + apostrophe;
            rest.remove(0, text.size() + 2);
            continue;
        }
        int run = 1;
        while (run < rest.size() && rest.at(run) == first) {
            ++run;
        }
        const QString text = plainField(first, run);
        if (text.isNull()) {
            return {};
        }
        result += text;
        rest.remove(0, run);
    }
    return result;
}

bool isQuoted(const QString& format, int position)
{
    return format.left(position).count(apostrophe) % 2 != 0;
}

int plainIndex(const QString& format, QChar character, int from, Qt::CaseSensitivity cs)
{
    for (int position = from; position < format.size(); ++position) {
        if (QString(format.at(position)).compare(QString(character), cs) == 0 && !isQuoted(format, position)) {
            return position;
        }
    }
    return -1;
}

// All text except the unquoted letters stays; the phrase goes to the first position of the first letter found.
QString plainApply(const QString& format, const QString& letters, const QString& phrase)
{
    int first = -1;
    for (const QChar letter : letters) {
        first = first == -1 ? plainIndex(format, letter, 0, Qt::CaseSensitive) : first;
    }
    if (first == -1) {
        return format;
    }
    QString result;
    for (int position = 0; position < format.size(); ++position) {
        if (position == first && !phrase.isEmpty()) {
            result += apostrophe + phrase + apostrophe;
        }
        if (isQuoted(format, position) || !letters.contains(format.at(position))) {
            result += format.at(position);
        }
    }
    return result;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::array<RelativeDateElement::Type, 4> elements{
        RelativeDateElement::Minutes, RelativeDateElement::Hours, RelativeDateElement::NamedDays,
        RelativeDateElement::Years};
    FuzzedDataProvider input(data, size);
    const RelativeDateElement::Type element = input.PickValueInArray(elements);
    const QChar sought(input.ConsumeIntegral<char16_t>());
    const int from = input.ConsumeIntegral<std::uint8_t>();
    const Qt::CaseSensitivity cs = input.ConsumeBool() ? Qt::CaseSensitive : Qt::CaseInsensitive;
    const QString phrase = QString::fromStdString(input.ConsumeRandomLengthString(longestPhrase));
    const QString format = QString::fromStdString(input.ConsumeRemainingBytesAsString());

    const QString translated = getQtDateTimePatternFromICU(format);
    ZEL_REQUIRE(translated == plainTranslation(format));
    ZEL_REQUIRE(translated.isNull() == plainTranslation(format).isNull());
    ZEL_REQUIRE(String::indexOfInFormat(format, sought, from, cs) == plainIndex(format, sought, from, cs));

    const QString letters = RelativeDate::characters(element);
    ZEL_REQUIRE(RelativeDate::apply(format, element, phrase) == plainApply(format, letters, phrase));
    return 0;
}
