// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "PpsContents.h"

#include "PpsCodec.h"
#include <cerrno>
#include <fcntl.h>
#include <QtCore/QFile>
#include <sys/stat.h>
#include <zel/PpsObject.h>

namespace zel {

namespace {

bool isPermanent(int error)
{
    return error == ENOTDIR || error == ENAMETOOLONG || error == ENXIO;
}

// Whether only a change of the file, its permissions or its path can fix the error. Other errors, such as too many open
// files, may pass without an event.
bool isLasting(int error)
{
    return error == ENOENT || error == EACCES || error == ELOOP || isPermanent(error);
}

// Of the open file, not of its name, which may be that of another file by now.
void readRegular(QFile& file, PpsContents& contents)
{
    if (!S_ISREG(contents.stamp.mode())) {
        contents.error =
            S_ISDIR(contents.stamp.mode()) ? qt_error_string(EISDIR) : QStringLiteral("Not a regular file");
        contents.permanent = true;
        return;
    }
    const QByteArray bytes = file.read(PpsObject::maximumSize + 1);
    if (file.error() != QFileDevice::NoError) {
        contents.error = file.errorString();
        contents.settled = false;
    } else if (bytes.size() > PpsObject::maximumSize) {
        contents.error = QStringLiteral("larger than %1 bytes").arg(PpsObject::maximumSize);
    } else {
        contents.bytes = bytes;
    }
}

} // namespace

PpsContents PpsContents::read(const QByteArray& file)
{
    PpsContents contents;
    // For a file that cannot be opened. Taken first, so that it differs if the file appears or disappears meanwhile.
    contents.stamp = FileStamp(file.constData());
    // A FIFO would otherwise wait for a writer.
    const int descriptor = ::open(file.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) {
        const int error = errno;
        contents.permanent = isPermanent(error);
        contents.error = qt_error_string(error);
        contents.settled = isLasting(error) && !contents.stamp.isFresh();
        return contents;
    }
    QFile opened;
    // If it could not be opened, reading fails with the reason.
    static_cast<void>(
        opened.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle));
    contents.stamp = FileStamp(descriptor);
    contents.settled = !contents.stamp.isFresh();
    readRegular(opened, contents);
    return contents;
}

bool PpsContents::isWhole() const
{
    QString reason = error;
    if (reason.isEmpty()) {
        PpsCodec::decode(bytes, reason);
    }
    return reason.isEmpty();
}

} // namespace zel
