// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TESTS_ICUBUNDLES_H
#define ZEL_TESTS_ICUBUNDLES_H

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <unicode/putil.h>
#include <unicode/udata.h>

/** Locale bundles compiled with genrb into a temporary data directory, which ICU prefers to its own data. */
class IcuBundles
{
public:
    /** Call before ICU opens any data. */
    void use() const { u_setDataDirectory(QFile::encodeName(m_directory.path()).constData()); }

    QString path() const { return m_directory.path(); }

    bool compile(const QString& locale, const QByteArray& source) const
    {
        const QString target = m_directory.path() + QLatin1Char('/') + QLatin1String(U_ICUDATA_NAME);
        QDir().mkpath(target);
        QFile file(m_directory.path() + QLatin1Char('/') + locale + QLatin1String(".txt"));
        if (!file.open(QIODevice::WriteOnly) || file.write(source) != source.size()) {
            return false;
        }
        file.close();
        return QProcess::execute(QStringLiteral("genrb"),
                                 {QStringLiteral("-q"), QStringLiteral("-d"), target, file.fileName()}) == 0;
    }

private:
    QTemporaryDir m_directory;
};

#endif
