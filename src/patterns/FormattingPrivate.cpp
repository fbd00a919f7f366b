#include "patterns/FormattingPrivate.h"

#include <algorithm>
#include <array>
#include <QtCore/QLatin1String>

namespace zel::utility::i18n {

namespace {

// The Qt field for a run of one, two, three, and four or more of a letter; null if Qt has none.
struct Field
{
    char letter;
    std::array<const char*, 4> text;
};

constexpr std::array<const char*, 4> noSuchField{};

constexpr Field fields[] = {
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
    {'G', noSuchField},
    {'Y', noSuchField},
    {'u', noSuchField},
    {'Q', noSuchField},
    {'q', noSuchField},
    {'w', noSuchField},
    {'W', noSuchField},
    {'D', noSuchField},
    {'F', noSuchField},
    {'g', noSuchField},
    {'A', noSuchField},
    {'k', noSuchField},
    {'K', noSuchField},
};

const Field* findField(QChar letter)
{
    const auto* const found = std::find_if(std::begin(fields), std::end(fields), [letter](const Field& field) {
        return QLatin1Char(field.letter) == letter;
    });
    return found == std::end(fields) ? nullptr : found;
}

} // namespace

QString getQtDateTimePatternFromICU(const QString& icuPattern)
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
        const Field* const field = findField(*c);
        if (field == nullptr) {
            result.append(*c++);
            continue;
        }
        const QChar* const next = std::find_if(c, end, [c](QChar other) { return other != *c; });
        const auto column = std::min<std::ptrdiff_t>(next - c, 4) - 1;
        const char* const text = field->text.at(static_cast<std::size_t>(column));
        if (text == nullptr) {
            return {};
        }
        result.append(QLatin1String(text));
        c = next;
    }
    return result;
}

} // namespace zel::utility::i18n
