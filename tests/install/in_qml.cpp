// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Prints the text of the element in InQml.qml.
#include <QtCore/QCoreApplication>
#include <QtCore/QTextStream>
#include <QtQml/QQmlApplicationEngine>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral(QML_IMPORT_PATH));
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Foreign/InQml.qml")));
    for (const QObject* const element : engine.rootObjects()) {
        QTextStream(stdout) << element->property("text").toString() << '\n';
    }
}
