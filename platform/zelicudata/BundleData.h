#ifndef ZEL_ICUDATA_BUNDLEDATA_H
#define ZEL_ICUDATA_BUNDLEDATA_H

#include <optional>
#include <string>
#include <string_view>
#include <unicode/udata.h>

namespace zel::icudata {

/** The two things a resource bundle consists of: what its header says and the bytes behind it, which it does not own.
 */
struct BundleData
{
    UDataInfo info;
    std::string_view body;

    /** The bytes of a .res file. */
    static std::optional<BundleData> fromFile(std::string_view file, std::string& error);

    /** Data that ICU opened. ICU does not tell how long it is, so the length is the one its own index declares. */
    static BundleData fromIcu(UDataMemory* memory);

    /** The bytes of a .res file. */
    std::string toFile() const;
};

} // namespace zel::icudata

#endif
