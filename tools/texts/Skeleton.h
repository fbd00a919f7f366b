#ifndef ZEL_TOOL_SKELETON_H
#define ZEL_TOOL_SKELETON_H

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace zel::tool {

/** The skeleton among the words of a command. */
class Skeleton
{
public:
    Skeleton() = delete;

    /** The first word, which must hold field letters and nothing else. */
    static QString from(const QStringList& words);

    /** What the commands that take a skeleton say about it. */
    static QString description();
};

} // namespace zel::tool

#endif
