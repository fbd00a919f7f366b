// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_PPSOBJECT_H
#define ZEL_PPSOBJECT_H

#include <memory>
#include <QtCore/QByteArray>
#include <QtCore/QFlags>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariantMap>
#include <zel/Global.h>

namespace zel {

/** The mode in which an object is opened. */
namespace PpsOpenMode {
enum Type {
    Publish = 1,  ///< writing
    Subscribe = 2 ///< reading, with notification of changes
};
Q_DECLARE_OPERATORS_FOR_FLAGS(QFlags<Type>)
} // namespace PpsOpenMode

/**
 * A settings object: a small UTF-8 text file that other programs rewrite, remove and create again at any time.
 *
 * The first line is `@` and the object's name. Every further line is `attribute:encoding:value`, where the encoding is
 * empty for text (with `\n` for newline and `\\` for backslash), `n` for a number and `b` for `true` or `false`. Every
 * line ends with a newline. The size limit is maximumSize.
 *
 * Use a PpsObject only on its own thread; the static functions are thread-safe. Notifications arrive through the event
 * loop of the object's thread; without an event loop, the object can be read but does not notify.
 *
 * @code
 * #include <zel/PpsObject.h>
 *
 * zel::PpsObject settings(QStringLiteral("/pps/system/settings"));
 * bool ok = settings.open(zel::PpsOpenMode::Subscribe);
 * const QVariantMap record = zel::PpsObject::decode(settings.read(&ok), &ok);
 * const QVariant clock = record.value("@settings").toMap().value("hourFormat"); // 24
 * @endcode
 */
class ZEL_EXPORT PpsObject : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PpsObject)

public:
    /** Size limit of an object, in bytes. */
    static constexpr int maximumSize = 1024 * 1024;

    /**
     * Creates a handle that is not open yet, on any thread. Cannot fail; open() reports an invalid path.
     *
     * @param path the object's absolute path, below root()
     * @param parent the owner, or null
     */
    explicit PpsObject(const QString& path, QObject* parent = nullptr);
    ~PpsObject() override;

    /**
     * Opens the object. The object and its directories need not exist or be readable yet: readyRead() reports when
     * they are. Call on the object's thread.
     *
     * @return false, with errorString(), for an invalid mode, a path that is not absolute, or an error that rewriting
     * the object cannot fix: a directory, a device, a path through a regular file. readyRead() reports a change of
     * these, too; then call open() again.
     */
    bool open(QFlags<PpsOpenMode::Type> mode);

    /**
     * Disables readyRead(), before or after open(), or enables it again and reports any change in between. Cannot fail.
     * Call on the object's thread.
     */
    void setReadyReadEnabled(bool enabled);

    /**
     * Returns the object's full contents. The first call in a slot directly connected to readyRead() returns exactly
     * the announced contents, even if a rewrite has begun since. Call on the object's thread.
     *
     * @param ok receives whether the object exists and could be read
     * @return the contents; empty, with errorString(), on failure
     */
    QByteArray read(bool* ok = nullptr);

    /**
     * Returns whether the object existed, readable or not, at the last read or notification. Call on the object's
     * thread.
     */
    bool exists() const;

    /**
     * Returns whether read() would return the same contents again, judging by the file's status. Costs one stat(). Also
     * false while the file is so new that another change might not alter its status. Call on the object's thread.
     */
    bool isCurrent() const;

    /**
     * Replaces the object atomically; creates missing directories. Call on the object's thread.
     *
     * @return false, with errorString(), if decode() rejects the contents or the file cannot be written
     */
    bool write(const QByteArray& contents);

    /**
     * Returns the file and the reason of the last failure, for example "/pps/system/settings: Is a directory". Call on
     * the object's thread.
     */
    QString errorString() const;

    /**
     * Decodes the contents of an object. Thread-safe.
     *
     * @param ok receives whether the contents could be decoded
     * @param error receives the line and the reason on failure: "line 2: unknown encoding"
     * @return one entry, from the object's name with its `@` to the map of its attributes: text as QString, a number as
     * int, qlonglong or double (the first that fits), `b` as bool. Empty if the contents deviate from the form above.
     */
    static QVariantMap decode(const QByteArray& contents, bool* ok = nullptr, QString* error = nullptr);

    /**
     * Encodes a record; the inverse of decode(). Thread-safe.
     *
     * @param ok receives whether the record could be encoded
     * @param error receives the reason on failure
     * @return the contents; empty on failure
     */
    static QByteArray encode(const QVariantMap& record, bool* ok = nullptr, QString* error = nullptr);

    /**
     * Returns the directory that is prepended to every object's path: the environment variable ZEL_PPS_ROOT, made
     * absolute at its first use. Empty if it is not set, and in a process with raised privileges. Thread-safe.
     */
    static const char* root();

    /** Returns the file of the object with this path, which need not exist. Thread-safe. */
    static QString filePath(const QString& path);

Q_SIGNALS:
    /** The contents differ from those last read or announced, or no longer exist. Emitted on the object's thread. */
    void readyRead();

private Q_SLOTS:
    void onSettled();

private:
    class Private;

    bool fail(const QString& reason);

    const std::unique_ptr<Private> d;
};

} // namespace zel

#endif
