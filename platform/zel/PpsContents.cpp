#include "PpsContents.h"

#include <cerrno>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <sys/stat.h>
#include <system_error>
#include <zel/PpsObject.h>

namespace zel {

namespace {

QString errorText(int error)
{
    return QString::fromLocal8Bit(std::generic_category().message(error).c_str());
}

} // namespace

PpsContents PpsContents::read(const QString& file)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(file).constData(), &status) != 0) {
        const int error = errno;
        return {{}, errorText(error), error != ENOENT};
    }
    // Opening anything else could wait for ever.
    if (!S_ISREG(status.st_mode)) {
        return {{}, S_ISDIR(status.st_mode) ? errorText(EISDIR) : QStringLiteral("Not a regular file"), true};
    }
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return {{}, device.errorString(), QFileInfo::exists(file)};
    }
    const QByteArray bytes = device.read(PpsObject::maximumSize + 1);
    if (device.error() != QFileDevice::NoError) {
        return {{}, device.errorString(), false};
    }
    if (bytes.size() > PpsObject::maximumSize) {
        return {{}, QStringLiteral("larger than %1 bytes").arg(PpsObject::maximumSize), false};
    }
    return {bytes, {}, false};
}

} // namespace zel
