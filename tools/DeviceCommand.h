#ifndef ZEL_TOOL_DEVICECOMMAND_H
#define ZEL_TOOL_DEVICECOMMAND_H

#include "Command.h"

namespace zel::tool {

/** `device`: the settings of the device. */
class DeviceCommand : public Command
{
public:
    CommandHelp help() const override;
    QList<QCommandLineOption> options() const override;
    ExitStatus run(const Arguments& arguments, Console& console) const override;
};

} // namespace zel::tool

#endif
