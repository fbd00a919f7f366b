// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// A million texts take no more memory than ten thousand.

#include "support/MessageLog.h"
#include "support/Rows.h"
#include "support/SettingsRoot.h"
#include <QtCore/QFile>
#include <QtTest/QTest>
#include <utility>
#include <zel/utility/i18n/CustomDateFormatter.h>
#include <zel/utility/i18n/RelativeDateFormatter.h>

using namespace zel::utility::i18n;

// Writes one text for the moment.
using Write = QString (*)(const QDateTime& moment);
Q_DECLARE_METATYPE(Write)

namespace {

const QDateTime anchor = QDateTime::fromString(QStringLiteral("2012-05-16T12:00Z"), Qt::ISODate);

// The resident size of this process in pages.
qint64 residentSize()
{
    QFile sizes("/proc/self/statm");
    if (!sizes.open(QIODevice::ReadOnly)) {
        qFatal("the resident size is unknown");
    }
    return sizes.readAll().split(' ').at(1).toLongLong();
}

QString writeCustom(const QDateTime& moment)
{
    static const CustomDateFormatter formatter(QStringLiteral("yMMMdhmz"));
    return formatter.format(moment);
}

QString writeRelative(const QDateTime& moment)
{
    static RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
    formatter.setAnchorTime(anchor);
    return formatter.format(moment);
}

// Formats each thousand moments in one call.
QString writeList(const QDateTime& moment)
{
    static RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
    static QList<QDateTime> moments;
    moments.append(moment);
    if (moments.size() < 1000) {
        return QStringLiteral("later");
    }
    formatter.setAnchorTime(anchor);
    return formatter.formatAll(std::exchange(moments, {})).constLast();
}

} // namespace

class LoadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void memoryStaysConstant_data()
    {
        const NamedRow<Write> row;
        row("CustomDateFormatter", Write(writeCustom));
        row("RelativeDateFormatter", Write(writeRelative));
        row("lists", Write(writeList));
    }

    void memoryStaysConstant()
    {
        const auto [write] = cells<Write>();
        QVERIFY(m_root.setClock("24") && m_root.setRegion("pl_PL") && m_root.setTimeZone("Asia/Tokyo"));
        MessageLog log;
        constexpr int count = 1000000;
        constexpr int warmUp = 10000;
        constexpr qint64 step = 1237; // seconds, so that all kinds of text are met
        qint64 early = 0;
        int written = 0;
        for (int i = 0; i < count; ++i) {
            written += write(anchor.addSecs((i % 1000 - 500) * step)).isEmpty() ? 0 : 1;
            early = i == warmUp ? residentSize() : early;
        }
        const qint64 late = residentSize();
        QCOMPARE(written, count);
        QVERIFY2(late * 100 <= early * 102, qPrintable(QStringLiteral("%1 pages became %2").arg(early).arg(late)));
        QCOMPARE(log.take(), QStringList());
    }

private:
    SettingsRoot m_root;
};

QTEST_GUILESS_MAIN(LoadTest)
#include "tst_load.moc"
