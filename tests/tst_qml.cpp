// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "support/FakeClock.h"
#include "support/SettingsRoot.h"
#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>
#include <QtQuickTest/QtQuickTest>

// Runs the QML tests in tests/qml with a private device and clock, the object "device".
class Setup : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE bool setClock(const QString& value) { return m_root.setClock(value.toUtf8()); }
    Q_INVOKABLE bool setRegion(const QString& value) { return m_root.setRegion(value.toUtf8()); }
    Q_INVOKABLE bool setTimeZone(const QString& value) { return m_root.setTimeZone(value.toUtf8()); }

    Q_INVOKABLE bool setSystemTimeZone(const QString& value) { return qputenv("TZ", value.toUtf8()); }

    // Sets the time of the program's clock, and notifies the program if requested.
    Q_INVOKABLE void setTime(const QString& local, bool announced)
    {
        FakeClock::set(QDateTime::fromString(local, Qt::ISODateWithMs));
        if (announced) {
            FakeClock::announce();
        }
    }

public Q_SLOTS:
    void applicationAvailable()
    {
        setSystemTimeZone(QStringLiteral("Europe/Berlin"));
        setClock(QStringLiteral("24"));
        setRegion(QStringLiteral("en_GB"));
        setTimeZone(QStringLiteral("Europe/Berlin"));
    }

    void qmlEngineAvailable(QQmlEngine* engine)
    {
        engine->addImportPath(QStringLiteral(ZEL_QML_MODULES));
        engine->rootContext()->setContextProperty(QStringLiteral("device"), this);
    }

private:
    const SettingsRoot m_root;
};

QUICK_TEST_MAIN_WITH_SETUP(qml, Setup)

#include "tst_qml.moc"
