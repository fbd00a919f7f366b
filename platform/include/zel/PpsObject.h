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

/** The purpose for which an object is opened. */
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
 * Use a PpsObject only on its own thread; the static functions may be called on any thread. Notifications arrive
 * through the event loop of the object's thread; without an event loop it can be read but does not notify.
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

public:
    /** Size limit of an object, in bytes. */
    static constexpr int maximumSize = 1024 * 1024;

    /**
     * Creates a handle that is not open yet. Cannot fail; open() reports a bad path.
     *
     * @param path the object's absolute path, below root()
     * @param parent the owner, or null
     */
    explicit PpsObject(const QString& path, QObject* parent = nullptr);
    ~PpsObject() override;

    /**
     * Opens the object. It need not exist or be readable yet, nor its directories: readyRead() reports when it is.
     * Call on the object's thread.
     *
     * @return false, with errorString(), for a bad mode, a path that is not absolute, and what rewriting the object
     * cannot fix: a directory, a device, a path through a regular file. These notify when they change, too; then call
     * open() again.
     */
    bool open(QFlags<PpsOpenMode::Type> mode);

    /**
     * Stops readyRead(), before open() or after it, or starts it again and reports a change in between. Call on the
     * object's thread.
     */
    void setReadyReadEnabled(bool enabled);

    /**
     * Returns the object's full contents. The first call in a slot directly connected to readyRead() returns exactly
     * the contents that were announced, not those of a rewrite that has begun since. Call on the object's thread.
     *
     * @param ok set to whether the object exists and could be read
     * @return the contents; empty, with errorString(), on failure
     */
    QByteArray read(bool* ok = nullptr);

    /** Returns whether the object existed, readable or not, at the last read or notification. */
    bool exists() const;

    /**
     * Returns whether read() would return the same contents again, by the file's status. Costs one stat(). False also
     * while the file is so new that another change would leave its status as it is. Call on the object's thread.
     */
    bool isCurrent() const;

    /**
     * Replaces the object atomically and creates missing directories. Call on the object's thread.
     *
     * @return false, with errorString(), if decode() rejects the contents or the file cannot be written
     */
    bool write(const QByteArray& contents);

    /** Returns the file and the reason of the last failure: "/pps/system/settings: Is a directory". */
    QString errorString() const;

    /**
     * Decodes the contents of an object. Call on any thread.
     *
     * @param ok set to whether the contents could be decoded
     * @param error set to the line and the reason on failure: "line 2: unknown encoding"
     * @return one entry, the object's name with its `@`, whose value is the map of attributes: text as QString, a
     * number as int, qlonglong or double (the first that fits), `b` as bool. Empty if the contents are not exactly of
     * the form above.
     */
    static QVariantMap decode(const QByteArray& contents, bool* ok = nullptr, QString* error = nullptr);

    /**
     * Encodes a record; the inverse of decode(). Call on any thread.
     *
     * @param ok set to whether the record could be encoded
     * @param error set to the reason on failure
     * @return the contents; empty on failure
     */
    static QByteArray encode(const QVariantMap& record, bool* ok = nullptr, QString* error = nullptr);

    /**
     * Returns the directory that is put in front of every object's path: the environment variable ZEL_PPS_ROOT, made
     * absolute when it is first used. Empty where it is not set, and in a process with raised privileges. Call on any
     * thread.
     */
    static const char* root();

    /** Returns the file of the object with this path. Call on any thread. */
    static QString filePath(const QString& path);

Q_SIGNALS:
    /** The contents are not those last read or announced, or are gone. Emitted on the object's thread. */
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
