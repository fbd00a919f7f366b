// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_PPSCONTENTS_H
#define ZEL_PPSCONTENTS_H

#include "FileStamp.h"
#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace zel {

/** The result of reading an object's file: its bytes, or the reason why there are none. */
struct PpsContents
{
    QByteArray bytes;
    QString error;          ///< empty if the file could be read
    bool permanent = false; ///< rewriting the object cannot fix the error
    FileStamp stamp = {};   ///< of the file before it was read
    bool settled = false;   ///< another read gives the same while the stamp is the same

    /** Never blocks, whatever the file is. */
    static PpsContents read(const QByteArray& file);

    /** Whether the bytes are a whole object. */
    bool isWhole() const;

    bool operator==(const PpsContents& other) const { return bytes == other.bytes && error == other.error; }
    bool operator!=(const PpsContents& other) const { return !(*this == other); }
};

} // namespace zel

#endif
