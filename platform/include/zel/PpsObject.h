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

/** What an object is opened for. */
namespace PpsOpenMode {
enum Type {
    Publish = 1,  /**< writing */
    Subscribe = 2 /**< reading, with notification of changes */
};
Q_DECLARE_OPERATORS_FOR_FLAGS(QFlags<Type>)
} // namespace PpsOpenMode

/**
 * One settings object: a small UTF-8 text file that others rewrite, remove and create again at any time.
 *
 * Its first line is `@` and the object's name. Every further line is `attribute:encoding:value`, where the encoding is
 * empty for text (`\n` and `\\` stand for newline and backslash), `n` for a number and `b` for `true` or `false`. Every
 * line ends with a newline, and the whole is at most maximumSize bytes.
 *
 * Notifications arrive through the event loop of the thread to which the PpsObject belongs; an object on a thread
 * without one is read like any other, but never notifies. A PpsObject is used on its own thread only; the static
 * functions may be called on any.
 *
 * @code
 * zel::PpsObject settings(QStringLiteral("/pps/system/settings"));
 * bool ok = settings.open(zel::PpsOpenMode::Subscribe);
 * const QVariantMap record = zel::PpsObject::decode(settings.read(&ok), &ok);
 * record.value("@settings").toMap().value("hourFormat"); // 24
 * @endcode
 */
class ZEL_EXPORT PpsObject : public QObject
{
    Q_OBJECT

public:
    /** The largest object in bytes. */
    static constexpr int maximumSize = 1024 * 1024;

    /** A handle, not yet open, on the object with this absolute path, seen from root(). */
    explicit PpsObject(const QString& path, QObject* parent = nullptr);
    ~PpsObject() override;

    /**
     * Opens the object. One that does not exist can be opened too, even where its directories do not exist: it notifies
     * as soon as it appears, and one that may not be read as soon as it may.
     *
     * @return false for a bad mode, a path that is not absolute, and what rewriting the object cannot fix: a directory,
     *         a device, a path through a regular file. These last notify, too, when they change; open() can then be
     *         called again.
     */
    bool open(QFlags<PpsOpenMode::Type> mode);

    /** Stops readyRead(), before open() or after, or starts it again; what changed in between is notified then. */
    void setReadyReadEnabled(bool enabled);

    /**
     * The object's full contents. The first call from a slot that hears readyRead() directly gives the very contents
     * that were announced, so that nobody sees a half-finished rewrite that started in between.
     *
     * @param ok set to whether the object exists and could be read
     */
    QByteArray read(bool* ok = nullptr);

    /** Whether there was an object, readable or not, when it was last looked at. */
    bool exists() const;

    /**
     * Whether read() would give what it last gave, for all that the file's status tells. Costs one stat(); false, too,
     * while the file is so new that a further change would not show.
     */
    bool isCurrent() const;

    /**
     * Replaces the object as a whole, so that no reader ever sees half of it, and creates its directories where they
     * are missing. Contents that decode() would refuse are not written.
     */
    bool write(const QByteArray& contents);

    /** The file and the reason of the last failure, as in "/pps/system/settings: Is a directory". */
    QString errorString() const;

    /**
     * The record in the contents of an object: one entry, named as the object with its `@`, which is the map of its
     * attributes. Text gives a QString, a number an int where it fits, else a qlonglong, else a double, and `b` a bool.
     * Contents that are not exactly of the form above fail as a whole and give an empty map.
     *
     * @param ok set to whether the contents could be decoded
     * @param error set to the line and the reason, as in "line 2: unknown encoding"
     */
    static QVariantMap decode(const QByteArray& contents, bool* ok = nullptr, QString* error = nullptr);

    /**
     * The contents that decode() to the record, or empty where no contents do.
     *
     * @param ok set to whether the record could be encoded
     * @param error set to what stands in the way
     */
    static QByteArray encode(const QVariantMap& record, bool* ok = nullptr, QString* error = nullptr);

    /**
     * The directory that is put in front of every object's path: the environment's ZEL_PPS_ROOT. A relative one is made
     * absolute when it is first used. Empty if that is not set, and always in a process that runs with raised
     * privileges.
     */
    static const char* root();

    /** The file that holds the object with this path. */
    static QString filePath(const QString& path);

Q_SIGNALS:
    /** The contents are no longer those that this PpsObject last read or announced; also that they are gone. */
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
