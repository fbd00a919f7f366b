// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// A program without the library uses ICU and then loads a plug-in that needs the library.

#include "support/MessageLog.h"
#include "support/Rows.h"
#include "support/SettingsRoot.h"
#include <QtCore/QLibrary>
#include <QtCore/QLocale>
#include <QtTest/QTest>
#include <unicode/resbund.h>

class PluginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_root.setClock("24"));
        UErrorCode status = U_ZERO_ERROR;
        const icu::ResourceBundle used(nullptr, icu::Locale::getGermany(), status);
        QVERIFY(U_SUCCESS(status));
        QVERIFY2(m_plugin.load(), qPrintable(m_plugin.errorString()));
        used.get("units", status);
        QCOMPARE(status, U_MISSING_RESOURCE_ERROR);
    }

    void hasPhrases_data()
    {
        const NamedRow<QStringList> row;
        row("de_DE", {QStringLiteral("vor 3 Stunden"), QStringLiteral("gestern, 12:00")});
        row("de_AT", {QStringLiteral("vor 3 Stunden"), QStringLiteral("gestern, 12:00")});
        row("fr_FR", {QStringLiteral("il y a 3 heures"), QStringLiteral("hier 12:00")});
    }

    void hasPhrases()
    {
        const auto [expected] = cells<QStringList>();
        const auto relativeTexts =
            reinterpret_cast<void (*)(const QLocale&, QStringList&)>(m_plugin.resolve("relativeTexts"));
        QVERIFY(relativeTexts != nullptr);
        MessageLog log;
        QStringList texts;
        relativeTexts(QLocale(QLatin1String(QTest::currentDataTag())), texts);
        QCOMPARE(texts, expected);
        QCOMPARE(log.take(), QStringList());
    }

private:
    // As long as the plug-in, which follows the settings.
    SettingsRoot m_root;
    QLibrary m_plugin{QStringLiteral(ZEL_PLUGIN)};
};

QTEST_GUILESS_MAIN(PluginTest)
#include "tst_plugin.moc"
