#ifndef ZEL_TOOL_OTHERREGION_H
#define ZEL_TOOL_OTHERREGION_H

#include "Arguments.h"
#include <memory>
#include <QtCore/QTemporaryDir>

namespace zel::tool {

/** The region that --locale names, for this process, in the place of the device's; without --locale the device's. */
class OtherRegion
{
public:
    explicit OtherRegion(const Arguments& arguments);

    static QCommandLineOption option();

private:
    std::unique_ptr<QTemporaryDir> m_directory;
};

} // namespace zel::tool

#endif
