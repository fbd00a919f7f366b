#ifndef ZEL_PPSCONTENTS_H
#define ZEL_PPSCONTENTS_H

#include "FileStamp.h"
#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace zel {

/** What one read of an object's file finds: its bytes, or why there are none. */
struct PpsContents
{
    QByteArray bytes;
    QString error;          ///< empty if the file could be read
    bool permanent = false; ///< rewriting the object, or its permissions, cannot fix the error
    FileStamp stamp = {};   ///< of the file before it was read
    bool settled = false;   ///< the next read finds the same unless the stamp is another one

    /** Never waits, whatever the file is. */
    static PpsContents read(const QByteArray& file);

    /** The bytes are those of an object, not half of one. */
    bool isWhole() const;

    bool operator==(const PpsContents& other) const { return bytes == other.bytes && error == other.error; }
    bool operator!=(const PpsContents& other) const { return !(*this == other); }
};

} // namespace zel

#endif
