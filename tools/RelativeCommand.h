#ifndef ZEL_TOOL_RELATIVECOMMAND_H
#define ZEL_TOOL_RELATIVECOMMAND_H

#include "Command.h"

namespace zel::tool {

/** `relative`: moments as seen from another one. */
class RelativeCommand : public Command
{
public:
    CommandHelp help() const override;
    QList<QCommandLineOption> options() const override;
    ExitStatus run(const Arguments& arguments, Console& console) const override;
};

} // namespace zel::tool

#endif
