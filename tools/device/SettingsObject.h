#ifndef ZEL_TOOL_SETTINGSOBJECT_H
#define ZEL_TOOL_SETTINGSOBJECT_H

#include <QtCore/QString>
#include <QtCore/QVariantMap>

namespace zel::tool {

/** One settings object of the device platform, read and written as a whole. */
class SettingsObject
{
public:
    enum State {
        Readable,
        Missing,
        Torn,      ///< there, but not of the form of a settings object
        Unreadable ///< not to be looked at, and so not to be mended
    };

    /** Reads the object. */
    explicit SettingsObject(const QString& path);

    State state() const { return m_state; }
    /** The file and what is wrong with it. */
    QString fault() const { return m_fault; }
    QVariantMap attributes() const { return m_attributes; }

    /** Writes the object with these attributes and no others. */
    void write(const QVariantMap& attributes) const;

private:
    QString name() const;
    void read();
    void fail(State state, const QString& fault);

    QString m_path;
    State m_state = Readable;
    QString m_fault;
    QVariantMap m_attributes;
};

} // namespace zel::tool

#endif
