#ifndef ZEL_TOOL_GALLERYCOMMAND_H
#define ZEL_TOOL_GALLERYCOMMAND_H

#include "Command.h"

namespace zel::tool {

/** `gallery`: everything that depends on the locale, for every locale, on one page. */
class GalleryCommand : public Command
{
public:
    CommandHelp help() const override;
    QList<QCommandLineOption> options() const override;
    ExitStatus run(const Arguments& arguments, Console& console) const override;
};

} // namespace zel::tool

#endif
