// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TESTS_SETTINGSROOT_H
#define ZEL_TESTS_SETTINGSROOT_H

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

/**
 * A settings root in a temporary directory, set as ZEL_PPS_ROOT. Objects are written as text, without the code under
 * test.
 */
class SettingsRoot
{
public:
    SettingsRoot() { qputenv("ZEL_PPS_ROOT", QFile::encodeName(m_directory.path())); }

    QString path() const { return m_directory.path(); }
    QString file(const QString& object) const { return m_directory.path() + object; }

    /** Replaces an object by rename, as a settings service does. */
    bool write(const QString& object, const QByteArray& text) const
    {
        QDir().mkpath(QFileInfo(file(object)).path());
        QSaveFile target(file(object));
        return target.open(QIODevice::WriteOnly) && target.write(text) == text.size() && target.commit();
    }

    /** Rewrites an object in place, as a careless writer does. */
    bool rewrite(const QString& object, const QByteArray& text) const
    {
        QFile target(file(object));
        return target.open(QIODevice::WriteOnly | QIODevice::Truncate) && target.write(text) == text.size();
    }

    bool remove(const QString& object) const { return QFile::remove(file(object)); }

    bool setClock(const QByteArray& value) const
    {
        return write(QStringLiteral("/pps/system/settings"), "@settings\nhourFormat:n:" + value + "\n");
    }
    bool setTimeZone(const QByteArray& value) const
    {
        return write(QStringLiteral("/pps/services/confstr/_CS_TIMEZONE"),
                     "@_CS_TIMEZONE\n_CS_TIMEZONE::" + value + "\n");
    }
    bool setRegion(const QByteArray& value) const
    {
        return write(QStringLiteral("/pps/system/locale"), "@locale\nregion::" + value + "\n");
    }

private:
    QTemporaryDir m_directory;
};

#endif
