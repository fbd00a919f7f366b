// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_ICU_QTFIELD_H
#define ZEL_ICU_QTFIELD_H

#include <algorithm>
#include <array>
#include <cstddef>

namespace zel::icudata {

/** A field of ICU's patterns in Qt's syntax. Header-only: the library and the command line share the table. */
class QtField
{
public:
    /** Returns the field of a letter; null if the letter is not a field. */
    static const QtField* find(char16_t letter)
    {
        const auto* const found = std::find_if(std::begin(all), std::end(all), [letter](const QtField& field) {
            return static_cast<char16_t>(field.m_letter) == letter;
        });
        return found == std::end(all) ? nullptr : found;
    }

    /** Returns the Qt field for this many letters; null if Qt has none. */
    const char* text(std::ptrdiff_t count) const
    {
        return m_text.at(static_cast<std::size_t>(std::min<std::ptrdiff_t>(count, 4) - 1));
    }

private:
    using Texts = std::array<const char*, 4>; // for one, two, three, and four or more letters

    constexpr QtField(char letter, const Texts& text) : m_letter(letter), m_text(text) {}

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
