// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_ICU_QTFIELD_H
#define ZEL_ICU_QTFIELD_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <QtCore/QLatin1Char>
#include <QtCore/QLatin1String>
#include <QtCore/QString>

namespace zel::icudata {

/** A field of ICU's patterns in Qt's syntax. Header-only: the library and the command line share it. */
class QtField
{
public:
    /** Returns an ICU pattern in Qt's syntax; a null string for an empty one and for one with a field that Qt lacks. */
    static QString translate(const QString& icuPattern)
    {
        constexpr QLatin1Char apostrophe('\'');
        const QChar* const end = icuPattern.cend();
        QString result;
        for (const QChar* c = icuPattern.cbegin(); c != end;) {
            if (*c == apostrophe) {
                const QChar* const text = c + 1;
                const QChar* const close = std::find(text, end, apostrophe);
                result.append(apostrophe).append(text, static_cast<int>(close - text)).append(apostrophe);
                c = close == end ? end : close + 1;
                continue;
            }
            const QtField* const field = find(c->unicode());
            if (field == nullptr) {
                result.append(*c++);
                continue;
            }
            const QChar* const next = std::find_if(c, end, [c](QChar other) { return other != *c; });
            const char* const text = field->text(next - c);
            if (text == nullptr) {
                return {};
            }
            result.append(QLatin1String(text));
            c = next;
        }
        return result;
    }

private:
    using Texts = std::array<const char*, 4>; // for one, two, three, and four or more letters

    constexpr QtField(char letter, const Texts& text) : m_letter(letter), m_text(text) {}

    /** The field of a letter; null if the letter is not a field. */
    static const QtField* find(char16_t letter)
    {
        const auto* const found = std::find_if(std::begin(all), std::end(all), [letter](const QtField& field) {
            return static_cast<char16_t>(field.m_letter) == letter;
        });
        return found == std::end(all) ? nullptr : found;
    }

    /** The Qt field for this many letters; null if Qt has none. */
    const char* text(std::ptrdiff_t count) const
    {
        return m_text.at(static_cast<std::size_t>(std::min<std::ptrdiff_t>(count, 4) - 1));
    }

    static const QtField all[30];

    char m_letter;
    Texts m_text;
};

inline constexpr QtField QtField::all[30] = {
    {'y', {"yyyy", "yy", "yyyy", "yyyy"}},
    {'M', {"M", "MM", "MMM", "MMMM"}},
    {'L', {"M", "MM", "MMM", "MMMM"}},
    {'d', {"d", "dd", "dd", "dd"}},
    {'E', {"ddd", "ddd", "ddd", "dddd"}},
    {'c', {nullptr, nullptr, "ddd", "dddd"}},
    {'e', {nullptr, nullptr, "ddd", nullptr}},
    {'H', {"h", "hh", "hh", "hh"}},
    {'h', {"h", "hh", "hh", "hh"}},
    {'m', {"m", "mm", "mm", "mm"}},
    {'s', {"s", "ss", "ss", "ss"}},
    {'S', {"z", "zzz", "zzz", "zzz"}},
    {'a', {"AP", "AP", "AP", "AP"}},
    {'z', {"t", "t", "t", "t"}},
    {'Z', {"t", "t", "t", "t"}},
    {'v', {"t", "t", "t", "t"}},
    {'V', {"t", "t", "t", "t"}},
    {'G', {}},
    {'Y', {}},
    {'u', {}},
    {'Q', {}},
    {'q', {}},
    {'w', {}},
    {'W', {}},
    {'D', {}},
    {'F', {}},
    {'g', {}},
    {'A', {}},
    {'k', {}},
    {'K', {}},
};

} // namespace zel::icudata

#endif
