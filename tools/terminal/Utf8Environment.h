#ifndef ZEL_TOOL_UTF8ENVIRONMENT_H
#define ZEL_TOOL_UTF8ENVIRONMENT_H

#include <optional>
#include <string>

namespace zel::tool {

/**
 * Sets a UTF-8 character set in the environment while the object exists. The process's C locale keeps the character
 * set; its other categories, and the environment that the region is read from, are restored afterwards. Does nothing if
 * the environment has UTF-8 already. Use before the first thread starts.
 */
class Utf8Environment
{
public:
    Utf8Environment();
    ~Utf8Environment();
    Utf8Environment(const Utf8Environment&) = delete;
    Utf8Environment& operator=(const Utf8Environment&) = delete;

private:
    bool m_changed = false;
    std::optional<std::string> m_value;
};

} // namespace zel::tool

#endif
