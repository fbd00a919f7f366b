#ifndef ZEL_TOOL_FINDING_H
#define ZEL_TOOL_FINDING_H

#include <QtCore/QString>

namespace zel::tool {

/** What a look at one part of the installation or the device found. */
struct Finding
{
    enum Status {
        Good,
        Note, ///< worth knowing, but nothing is wrong
        Wrong
    };

    Status status;
    QString subject;
    QString text;   ///< the value and where it comes from, or what is wrong
    QString advice; ///< what to do about it, where there is something to do
};

} // namespace zel::tool

#endif
