#ifndef ZEL_TOOL_WATCHCOMMAND_H
#define ZEL_TOOL_WATCHCOMMAND_H

#include "Command.h"

namespace zel::tool {

/** `watch`: a text that follows the device. */
class WatchCommand : public Command
{
public:
    CommandHelp help() const override;
    QList<QCommandLineOption> options() const override;
    ExitStatus run(const Arguments& arguments, Console& console) const override;
};

} // namespace zel::tool

#endif
