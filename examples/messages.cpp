// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// A list of ten thousand messages. Their relative times stay up to date and follow the settings of the user.
//
// usage: example_messages [--print]      (also prints the first texts, and each when it changes)
#include <algorithm>
#include <QtCore/QAbstractListModel>
#include <QtCore/QTextStream>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QListView>
#include <QtWidgets/QStyledItemDelegate>
#include <zel/utility/i18n/RelativeDateFormatter.h>

using namespace zel::utility::i18n;

namespace {

constexpr int rows = 10000;
constexpr int printedRows = 3;

// The arrival times of the messages: 5 minutes, 3 hours, a day, and further back in each row.
class MessageModel : public QAbstractListModel
{
public:
    int rowCount(const QModelIndex& /*parent*/) const override { return rows; }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DisplayRole) {
            return {};
        }
        const int row = index.row();
        const int minutes = row == 0 ? 5 : row == 1 ? 180 : 1440 + (row - 2) * 37;
        return m_opened.addSecs(-60LL * minutes);
    }

private:
    static QDateTime startOfMinute(const QDateTime& time) { return time.addMSecs(-(time.toMSecsSinceEpoch() % 60000)); }

    QDateTime m_opened = startOfMinute(QDateTime::currentDateTimeUtc());
};

// Shows moments relative to now, and repaints when a visible text changes.
class DateDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit DateDelegate(QAbstractItemView* view) : QStyledItemDelegate(view), m_view(view)
    {
        m_formatter.setWording(RelativeDateWording::Natural);
        m_timer.setSingleShot(true);
        m_ready = connect(&m_timer, SIGNAL(timeout()), this, SLOT(refresh())) &&
                  m_formatter.connectToSettings(this, SLOT(followSettings()));
    }

    bool isReady() const { return m_ready; }

    // Called for the rows that are shown.
    QString displayText(const QVariant& value, const QLocale& /*locale*/) const override
    {
        const QDateTime moment = value.toDateTime().toLocalTime(); // in the current time zone
        const QDateTime validUntil = m_formatter.validUntil(moment);
        if (validUntil.isValid()) {
            wakeUpIn(QDateTime::currentDateTime().msecsTo(validUntil));
        }
        return m_formatter.format(moment);
    }

    Q_SIGNAL void refreshed();

private Q_SLOTS:
    void refresh()
    {
        m_formatter.applyCurrentTimeAsAnchor();
        m_view->viewport()->update();
        wakeUpIn(longestWait);
        Q_EMIT refreshed();
    }

    // Setting the clock again makes the formatter read the user's clock again.
    void followSettings()
    {
        m_formatter.applyUserRegionLocale();
        m_formatter.setClockFormat(ClockFormat::ApplyLocaleFormat);
        m_formatter.setClockFormat(ClockFormat::ApplyUserFormat);
        refresh();
    }

private:
    static constexpr qint64 longestWait = 60000; // ms; the clock of the system may be set meanwhile

    void wakeUpIn(qint64 time) const
    {
        if (!m_timer.isActive() || time < m_timer.remainingTime()) {
            m_timer.start(static_cast<int>(std::clamp<qint64>(time, 0, longestWait)));
        }
    }

    QAbstractItemView* m_view;
    RelativeDateFormatter m_formatter{RelativeDateFormat::TimeCritical};
    mutable QTimer m_timer;
    bool m_ready = false;
};

// Prints the changed texts of the first rows.
class Printer : public QObject
{
    Q_OBJECT

public:
    explicit Printer(const QListView& view, const DateDelegate& delegate) : m_view(view), m_delegate(delegate) {}

public Q_SLOTS:
    void print()
    {
        m_texts.resize(printedRows);
        for (int row = 0; row < printedRows; ++row) {
            const QVariant moment = m_view.model()->index(row, 0).data();
            const QString text = m_delegate.displayText(moment, m_view.locale());
            if (text != m_texts.at(row)) {
                m_texts[row] = text;
                QTextStream(stdout) << row + 1 << ": " << text << '\n';
            }
        }
    }

private:
    const QListView& m_view;
    const DateDelegate& m_delegate;
    QVector<QString> m_texts;
};

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    MessageModel model;
    QListView list;
    list.setUniformItemSizes(true);
    list.setModel(&model);
    DateDelegate delegate(&list);
    list.setItemDelegate(&delegate);
    list.show();
    Printer printer(list, delegate);
    bool isReady = delegate.isReady();
    if (QApplication::arguments().contains(QStringLiteral("--print"))) {
        printer.print();
        isReady = QObject::connect(&delegate, SIGNAL(refreshed()), &printer, SLOT(print())) && isReady;
    }
    return isReady ? QApplication::exec() : 1;
}

#include "messages.moc"
