// A list of messages whose times grow older, and follow the clock and the region of the device while it is shown.
//
// usage: example_messages [--at MOMENT] [--step SECONDS] [--print]
#include <QtCore/QCommandLineParser>
#include <QtCore/QTextStream>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QTreeWidget>
#include <zel/utility/i18n/RelativeDateFormatter.h>

using namespace zel::utility::i18n;

namespace {

class MessageList : public QTreeWidget
{
public:
    explicit MessageList(const QDateTime& now) : m_received{now.addSecs(-300), now.addSecs(-10800), now.addDays(-1)}
    {
        setHeaderLabels({QStringLiteral("Message"), QStringLiteral("Received")});
        for (const char* text : {"Lunch?", "Minutes of the meeting", "Your parcel has arrived"}) {
            addTopLevelItem(new QTreeWidgetItem({QString::fromUtf8(text)}));
        }
        refresh(now);
    }

    // What came five minutes ago will have come yesterday some time, and the user may choose another clock or region.
    // A new formatter takes both as they are now. True if a text has changed by that.
    bool refresh(const QDateTime& now)
    {
        const QStringList before = texts();
        RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
        formatter.setAnchorTime(now);
        for (int row = 0; row < m_received.size(); ++row) {
            topLevelItem(row)->setText(1, formatter.format(m_received.at(row)));
        }
        return texts() != before;
    }

    QStringList texts() const
    {
        QStringList texts;
        for (int row = 0; row < topLevelItemCount(); ++row) {
            texts.append(topLevelItem(row)->text(1));
        }
        return texts;
    }

private:
    QList<QDateTime> m_received;
};

void print(const MessageList& list)
{
    QTextStream(stdout) << list.texts().join(QStringLiteral(" | ")) << '\n';
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QCommandLineParser options;
    options.addOptions({{QStringLiteral("at"), QStringLiteral("Start at this time."), QStringLiteral("MOMENT")},
                        {QStringLiteral("step"), QStringLiteral("Let a second last this long."),
                         QStringLiteral("SECONDS"), QStringLiteral("1")},
                        {QStringLiteral("print"), QStringLiteral("Also print the times, whenever one changes.")}});
    options.addHelpOption();
    options.process(application);

    QDateTime now = QDateTime::fromString(options.value(QStringLiteral("at")), Qt::ISODate);
    now = now.isValid() ? now : QDateTime::currentDateTime();
    const int step = options.value(QStringLiteral("step")).toInt();
    const bool printing = options.isSet(QStringLiteral("print"));

    MessageList list(now);
    list.show();
    if (printing) {
        print(list);
    }
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        now = now.addSecs(step);
        if (list.refresh(now) && printing) {
            print(list);
        }
    });
    timer.start(1000);
    return QApplication::exec();
}
