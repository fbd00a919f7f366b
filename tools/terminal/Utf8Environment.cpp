// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "terminal/Utf8Environment.h"

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <langinfo.h>

namespace zel::tool {

namespace {

constexpr const char* variable = "LC_ALL";
constexpr const char* utf8 = "C.UTF-8";

void takeFromEnvironment()
{
    if (std::setlocale(LC_ALL, "") == nullptr) {
        std::setlocale(LC_ALL, "C"); // one of the names is unknown
    }
}

} // namespace

Utf8Environment::Utf8Environment()
{
    takeFromEnvironment();
    m_changed = std::strcmp(::nl_langinfo(CODESET), "UTF-8") != 0;
    if (m_changed) {
        const char* const value = std::getenv(variable);
        m_value = value == nullptr ? std::nullopt : std::make_optional<std::string>(value);
        ::setenv(variable, utf8, 1);
    }
}

Utf8Environment::~Utf8Environment()
{
    if (!m_changed) {
        return;
    }
    if (m_value) {
        ::setenv(variable, m_value->c_str(), 1);
    } else {
        ::unsetenv(variable);
    }
    takeFromEnvironment();
    std::setlocale(LC_CTYPE, utf8);
}

} // namespace zel::tool
