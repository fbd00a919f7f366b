// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "bridge/Diagnostic.h"

#include "bridge/DeferredMessages.h"
#include "bridge/DiagnosticSilence.h"
#include <QtCore/QDateTime>
#include <QtCore/QDebug>
#include <QtCore/QLatin1String>
#include <QtCore/QMessageLogger>

namespace zel::utility::i18n {

namespace {

QString quoted(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

} // namespace

void Diagnostic::append(QString& text, const char* item)
{
    text += QString::fromUtf8(item) + QLatin1Char(' ');
}

void Diagnostic::append(QString& text, int item)
{
    text += QString::number(item) + QLatin1Char(' ');
}

void Diagnostic::append(QString& text, const QString& item)
{
    text += quoted(item) + QLatin1Char(' ');
}

void Diagnostic::append(QString& text, const QStringList& item)
{
    QStringList entries;
    for (const QString& entry : item) {
        entries.append(quoted(entry));
    }
    text += QLatin1Char('(') + entries.join(QLatin1String(", ")) + QLatin1String(") ");
}

void Diagnostic::append(QString& text, const QDateTime& item)
{
    QString written;
    QDebug(&written).nospace() << item;
    text += written + QLatin1Char(' ');
}

void Diagnostic::hand(QtMsgType type, const QString& text)
{
    if (DiagnosticSilence::drop() || DeferredMessages::hold(type, text)) {
        return;
    }
    const QByteArray utf8 = text.toUtf8();
    // The category "default" is that of qWarning(); a handler may compare it.
    const QMessageLogger logger(nullptr, 0, nullptr);
    switch (type) {
    case QtDebugMsg:
        logger.debug("%s", utf8.constData());
        break;
    case QtInfoMsg:
        logger.info("%s", utf8.constData());
        break;
    case QtWarningMsg:
        logger.warning("%s", utf8.constData());
        break;
    case QtCriticalMsg:
        logger.critical("%s", utf8.constData());
        break;
    case QtFatalMsg:
        logger.fatal("%s", utf8.constData());
    }
}

} // namespace zel::utility::i18n
