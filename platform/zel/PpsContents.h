#ifndef ZEL_PPSCONTENTS_H
#define ZEL_PPSCONTENTS_H

#include "FileStamp.h"
#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace zel {

/** What a look at an object's file finds: its bytes, or why there are none. */
struct PpsContents
{
    QByteArray bytes;
    QString error;         ///< empty where the file could be read
    bool hopeless = false; ///< no write of the object can mend the error
    FileStamp stamp = {};  ///< of the file just before it was read
    bool settled = false;  ///< a change since then shows in the stamp

    static PpsContents read(const QString& file);

    /** The bytes are those of an object, not half of one. */
    bool isWhole() const;

    bool operator==(const PpsContents& other) const { return bytes == other.bytes && error == other.error; }
    bool operator!=(const PpsContents& other) const { return !(*this == other); }
};

} // namespace zel

#endif
