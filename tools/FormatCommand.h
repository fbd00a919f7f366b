#ifndef ZEL_TOOL_FORMATCOMMAND_H
#define ZEL_TOOL_FORMATCOMMAND_H

#include "Command.h"

namespace zel::tool {

/** `format`: moments by a skeleton. */
class FormatCommand : public Command
{
public:
    CommandHelp help() const override;
    QList<QCommandLineOption> options() const override;
    ExitStatus run(const Arguments& arguments, Console& console) const override;
};

} // namespace zel::tool

#endif
