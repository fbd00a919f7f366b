#include "PpsContents.h"

#include "PpsCodec.h"
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
    const FileStamp stamp(QFile::encodeName(file).constData());
    const bool settled = !stamp.isFresh();
    if (stamp.error() != 0) {
        return {{}, errorText(stamp.error()), !stamp.isMissing(), stamp, settled};
    }
    // Opening anything else could wait for ever.
    if (!S_ISREG(stamp.mode())) {
        return {
            {}, S_ISDIR(stamp.mode()) ? errorText(EISDIR) : QStringLiteral("Not a regular file"), true, stamp, settled};
    }
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return {{}, device.errorString(), QFileInfo::exists(file), stamp, settled};
    }
    const QByteArray bytes = device.read(PpsObject::maximumSize + 1);
    if (device.error() != QFileDevice::NoError) {
        return {{}, device.errorString(), false, stamp, settled};
    }
    if (bytes.size() > PpsObject::maximumSize) {
        return {{}, QStringLiteral("larger than %1 bytes").arg(PpsObject::maximumSize), false, stamp, settled};
    }
    return {bytes, {}, false, stamp, settled};
}

bool PpsContents::isWhole() const
{
    QString fault = error;
    if (fault.isEmpty()) {
        PpsCodec::decode(bytes, fault);
    }
    return fault.isEmpty();
}

} // namespace zel
