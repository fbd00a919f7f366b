#ifndef ZEL_TOOL_FORMATSCOMMAND_H
#define ZEL_TOOL_FORMATSCOMMAND_H

#include "Command.h"

namespace zel::tool {

/** `formats`: the patterns of a locale. */
class FormatsCommand : public Command
{
public:
    CommandHelp help() const override;
    QList<QCommandLineOption> options() const override;
    ExitStatus run(const Arguments& arguments, Console& console) const override;
};

} // namespace zel::tool

#endif
