// The list of messages again, in QML: see Messages.qml.
//
// usage: example_quick [--print]      (also prints the first texts, and each when it changes)
#include <QtCore/QTextStream>
#include <QtGui/QGuiApplication>
#include <QtQml/QQmlApplicationEngine>

namespace {

constexpr int printedRows = 3;

class Printer : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void print(int row, const QString& text)
    {
        if (row < printedRows) {
            QTextStream(stdout) << row + 1 << ": " << text << '\n';
        }
    }
};

} // namespace

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    Printer printer;
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral(QML_IMPORT_PATH));
    if (QGuiApplication::arguments().contains(QStringLiteral("--print"))) {
        engine.setInitialProperties({{QStringLiteral("printer"), QVariant::fromValue<QObject*>(&printer)}});
    }
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Example/Messages.qml")));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}

#include "quick.moc"
