// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include <zel/PpsObject.h>

#include "PpsCodec.h"
#include "PpsContents.h"
#include "PpsWatcher.h"
#include <cerrno>
#include <cstdlib>
#include <map>
#include <memory>
#include <mutex>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <QtCore/QSaveFile>
#include <utility>

namespace zel {

namespace {

// Relative to the working directory at the first use of the root. The results are never destroyed.
const char* absoluteRoot(const QByteArray& root)
{
    static std::mutex mutex;
    static auto& roots = *std::make_unique<std::map<QByteArray, QByteArray>>().release();
    const std::lock_guard lock(mutex);
    QByteArray& absolute = roots[root];
    if (absolute.isEmpty()) {
        absolute = QFile::encodeName(QFileInfo(QFile::decodeName(root)).absoluteFilePath());
    }
    return absolute.constData();
}

} // namespace

class PpsObject::Private
{
public:
    explicit Private(const QString& objectPath)
        : path(objectPath),
          file(filePath(objectPath)),
          encodedFile(QFile::encodeName(file))
    {
    }

    const QString path;
    const QString file;
    const QByteArray encodedFile;
    QFlags<PpsOpenMode::Type> mode;
    bool notifies = true;
    bool follows = false;   // opened for notification, even if that failed for the object's state
    PpsContents seen;       // what was last read or announced
    bool announced = false; // readyRead() is being emitted for what was seen
    std::unique_ptr<PpsWatcher> watcher;
    QString error;
};

PpsObject::PpsObject(const QString& path, QObject* parent) : QObject(parent), d(std::make_unique<Private>(path)) {}

PpsObject::~PpsObject() = default;

bool PpsObject::open(QFlags<PpsOpenMode::Type> mode)
{
    d->watcher.reset();
    d->mode = {};
    d->follows = false;
    d->announced = false;
    const QFlags<PpsOpenMode::Type> known = PpsOpenMode::Publish | PpsOpenMode::Subscribe;
    if (!mode || (mode & known) != mode) {
        return fail(QStringLiteral("unknown open mode"));
    }
    if (!d->path.startsWith(QLatin1Char('/'))) {
        return fail(QStringLiteral("not an absolute path"));
    }
    d->seen = PpsContents::read(d->encodedFile);
    d->follows = mode.testFlag(PpsOpenMode::Subscribe);
    setReadyReadEnabled(d->notifies);
    if (d->seen.permanent) {
        return fail(d->seen.error);
    }
    d->mode = mode;
    return true;
}

void PpsObject::setReadyReadEnabled(bool enabled)
{
    d->notifies = enabled;
    if (!enabled) {
        d->watcher.reset();
    } else if (!d->watcher && d->follows) {
        d->watcher = std::make_unique<PpsWatcher>(d->encodedFile, this);
        if (!connect(d->watcher.get(), SIGNAL(settled()), this, SLOT(onSettled()))) {
            qCritical("zel::PpsObject cannot report changes of %s", d->encodedFile.constData());
        }
    }
}

void PpsObject::onSettled()
{
    if (d->watcher->contents() == d->seen) {
        return;
    }
    d->seen = d->watcher->contents();
    d->announced = true;
    const QPointer<PpsObject> alive(this);
    Q_EMIT readyRead();
    if (alive) {
        d->announced = false;
    }
}

QByteArray PpsObject::read(bool* ok)
{
    bool done = false;
    if (!d->mode.testFlag(PpsOpenMode::Subscribe)) {
        fail(QStringLiteral("not open for reading"));
    } else {
        if (!std::exchange(d->announced, false)) {
            d->seen = PpsContents::read(d->encodedFile);
        }
        done = d->seen.error.isEmpty() || fail(d->seen.error);
    }
    if (ok != nullptr) {
        *ok = done;
    }
    return done ? d->seen.bytes : QByteArray();
}

bool PpsObject::exists() const
{
    return d->seen.stamp.error() != ENOENT;
}

bool PpsObject::isCurrent() const
{
    return !d->announced && d->seen.settled && FileStamp(d->encodedFile.constData()) == d->seen.stamp;
}

bool PpsObject::write(const QByteArray& contents)
{
    if (!d->mode.testFlag(PpsOpenMode::Publish)) {
        return fail(QStringLiteral("not open for writing"));
    }
    QString error;
    PpsCodec::decode(contents, error);
    if (!error.isEmpty()) {
        return fail(error);
    }
    d->announced = false;
    QDir().mkpath(QFileInfo(d->file).path());
    QSaveFile file(d->file);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size() || !file.commit()) {
        return fail(file.errorString());
    }
    return true;
}

QString PpsObject::errorString() const
{
    return d->error;
}

bool PpsObject::fail(const QString& reason)
{
    d->error = d->file + QLatin1String(": ") + reason;
    return false;
}

QVariantMap PpsObject::decode(const QByteArray& contents, bool* ok, QString* error)
{
    QString reason;
    QVariantMap record = PpsCodec::decode(contents, reason);
    if (ok != nullptr) {
        *ok = reason.isEmpty();
    }
    if (error != nullptr) {
        *error = reason;
    }
    return record;
}

QByteArray PpsObject::encode(const QVariantMap& record, bool* ok, QString* error)
{
    QString reason;
    QByteArray contents = PpsCodec::encode(record, reason);
    if (ok != nullptr) {
        *ok = reason.isEmpty();
    }
    if (error != nullptr) {
        *error = reason;
    }
    return contents;
}

const char* PpsObject::root()
{
    const char* const root = ::secure_getenv("ZEL_PPS_ROOT");
    if (root == nullptr) {
        return "";
    }
    return *root == '/' || *root == '\0' ? root : absoluteRoot(root);
}

QString PpsObject::filePath(const QString& path)
{
    return QFile::decodeName(root()) + path;
}

} // namespace zel
