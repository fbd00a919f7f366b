#include "Utf8Environment.h"

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <langinfo.h>

namespace zel::tool {

namespace {

constexpr const char* all = "LC_ALL";
constexpr const char* characters = "LC_CTYPE";
constexpr const char* utf8 = "C.UTF-8";

bool isUtf8()
{
    std::setlocale(LC_ALL, "");
    return std::strcmp(::nl_langinfo(CODESET), "UTF-8") == 0;
}

} // namespace

Utf8Environment::Utf8Environment() : m_changed(!isUtf8()), m_all(valueOf(all)), m_characters(valueOf(characters))
{
    if (m_changed) {
        ::unsetenv(all); // it would win over the category
        ::setenv(characters, utf8, 1);
    }
}

Utf8Environment::~Utf8Environment()
{
    if (m_changed) {
        restore(all, m_all);
        restore(characters, m_characters);
        std::setlocale(LC_ALL, "");
        std::setlocale(LC_CTYPE, utf8);
    }
}

Utf8Environment::Value Utf8Environment::valueOf(const char* variable)
{
    const char* const value = std::getenv(variable);
    return value == nullptr ? Value() : Value(value);
}

void Utf8Environment::restore(const char* variable, const Value& value)
{
    if (value) {
        ::setenv(variable, value->c_str(), 1);
    } else {
        ::unsetenv(variable);
    }
}

} // namespace zel::tool
