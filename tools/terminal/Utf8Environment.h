// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_UTF8ENVIRONMENT_H
#define ZEL_TOOL_UTF8ENVIRONMENT_H

#include <optional>
#include <QtCore/QtGlobal>
#include <string>

namespace zel::tool {

/**
 * Sets a UTF-8 character set in the environment while the object exists. The process's C locale keeps the character
 * set; its other categories, and the environment that the region is read from, are restored afterwards. Does nothing if
 * the environment has UTF-8 already. Use before the first thread starts.
 */
class Utf8Environment
{
    Q_DISABLE_COPY_MOVE(Utf8Environment)

public:
    Utf8Environment();
    ~Utf8Environment();

private:
    bool m_changed = false;
    std::optional<std::string> m_value;
};

} // namespace zel::tool

#endif
