// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_SETTINGSOBJECT_H
#define ZEL_TOOL_SETTINGSOBJECT_H

#include <QtCore/QString>
#include <QtCore/QVariantMap>

namespace zel::tool {

/** A settings object of the device platform, read and written as a whole. */
class SettingsObject
{
public:
    enum State {
        Readable,
        Missing,
        Torn,      ///< not of the form of a settings object
        Unreadable ///< cannot be read, and so cannot be fixed
    };

    /** Reads the object. */
    explicit SettingsObject(const QString& path);

    State state() const { return m_state; }
    /** The file and the reason why it cannot be used. */
    QString error() const { return m_error; }
    QVariantMap attributes() const { return m_attributes; }

    /** Writes the object with these attributes and no others. */
    void write(const QVariantMap& attributes) const;

private:
    QString name() const;
    void read();
    void fail(State state, const QString& error);

    QString m_path;
    State m_state = Readable;
    QString m_error;
    QVariantMap m_attributes;
};

} // namespace zel::tool

#endif
