#ifndef ZEL_TOOL_PERCENTCOMMAND_H
#define ZEL_TOOL_PERCENTCOMMAND_H

#include "Command.h"

namespace zel::tool {

/** `percent`: numbers as percentages. */
class PercentCommand : public Command
{
public:
    CommandHelp help() const override;
    QList<QCommandLineOption> options() const override;
    ExitStatus run(const Arguments& arguments, Console& console) const override;
};

} // namespace zel::tool

#endif
