// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// The list of messages again, in QML: see Messages.qml.
//
// usage: example_quick [--print]      (also prints the first texts, and each when it changes)
#include <QtCore/QTextStream>
#include <QtGui/QGuiApplication>
#include <QtQml/QQmlApplicationEngine>

namespace {

// Prints only the messages of console.log() in QML.
void print(QtMsgType /*type*/, const QMessageLogContext& context, const QString& text)
{
    if (qstrcmp(context.category, "qml") == 0) {
        QTextStream(stdout) << text << '\n';
    }
}

} // namespace

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    if (QGuiApplication::arguments().contains(QStringLiteral("--print"))) {
        qInstallMessageHandler(print);
    }
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral(QML_IMPORT_PATH));
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Example/Messages.qml")));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
