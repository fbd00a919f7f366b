#ifndef ZEL_TOOL_DOCTORCOMMAND_H
#define ZEL_TOOL_DOCTORCOMMAND_H

#include "Command.h"

namespace zel::tool {

/** `doctor`: what there is, and where it comes from. */
class DoctorCommand : public Command
{
public:
    CommandHelp help() const override;
    ExitStatus run(const Arguments& arguments, Console& console) const override;
};

} // namespace zel::tool

#endif
