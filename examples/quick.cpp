// The list of messages again, in QML: see Messages.qml.
//
// usage: example_quick [--print MOMENT]
#include <QtCore/QTextStream>
#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickView>
#include <zel/utility/i18n/RelativeDateFormatter.h>

using namespace zel::utility::i18n;

namespace {

void print(const QQuickItem& messages)
{
    QTextStream(stdout) << messages.property("text").toString() << '\n';
}

} // namespace

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
    QQuickView view;
    view.setInitialProperties({{QStringLiteral("formatter"), QVariant::fromValue<QObject*>(&formatter)}});
    view.setSource(QUrl(QStringLiteral("qrc:/Messages.qml")));
    view.show();

    const QStringList arguments = QGuiApplication::arguments();
    QQuickItem* const messages = view.rootObject();
    if (messages == nullptr) {
        return 1;
    }
    if (arguments.value(1) == QLatin1String("--print")) {
        messages->setProperty("now", QDateTime::fromString(arguments.value(2), Qt::ISODate));
        print(*messages);
        QMetaObject::invokeMethod(messages, "changeType");
        print(*messages);
        return 0;
    }
    return QGuiApplication::exec();
}
