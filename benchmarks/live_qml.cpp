// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// What 10,000 elements of the QML module cost a program that runs.
//
// usage: live_qml minute SECONDS    prints wake-ups and ms of CPU in a minute; moments of the last SECONDS
//        live_qml frames RENEWALS   prints the frames of an animation in ten seconds, those that are late by half an
//                                   interval or more, and the longest in ms; renews all texts RENEWALS times

#include "QmlElements.h"
#include <algorithm>
#include <ctime>
#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QTextStream>
#include <QtCore/QTimer>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>

namespace {

constexpr qint64 days = 400000; // in seconds

constexpr const char* animation =
    "import QtQuick\n"
    "Window {\n"
    "    width: 360; height: 480\n"
    "    Rectangle {\n"
    "        width: 40; height: 40; color: \"gray\"\n"
    "        NumberAnimation on x { to: 320; duration: 1000; loops: Animation.Infinite }\n"
    "    }\n"
    "}";

void run(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, SLOT(quit()));
    loop.exec();
}

} // namespace

class Watch : public QObject
{
    Q_OBJECT

public:
    int minute(qint64 seconds)
    {
        const QmlElements elements(seconds);
        run(1000);
        if (!connect(QAbstractEventDispatcher::instance(), SIGNAL(awake()), this, SLOT(onAwake()))) {
            return 1;
        }
        const std::clock_t before = std::clock();
        run(60000);
        QTextStream(stdout) << m_wakeUps << ' ' << (std::clock() - before) * 1000 / CLOCKS_PER_SEC << '\n';
        return elements.areComplete() ? 0 : 1;
    }

    int frames(int renewals)
    {
        QmlElements elements(days);
        QQmlComponent component(elements.engine());
        component.setData(animation, QUrl());
        const std::unique_ptr<QObject> object(component.create());
        auto* const window = qobject_cast<QQuickWindow*>(object.get());
        if (window == nullptr) {
            return 1;
        }
        window->show();
        run(1000);
        m_interval = 1000 / window->screen()->refreshRate();
        m_lastFrame.start();
        if (!connect(window, SIGNAL(frameSwapped()), this, SLOT(onFrame()), Qt::DirectConnection)) {
            return 1;
        }
        run(500);
        for (int i = 0; i < renewals; ++i) {
            elements.renew();
            run(9000 / renewals);
        }
        run(500 + (renewals == 0 ? 9000 : 0));
        QTextStream(stdout) << m_frames << ' ' << m_lateFrames << ' ' << m_longest << '\n';
        return elements.areComplete() ? 0 : 1;
    }

private Q_SLOTS:
    void onAwake() { ++m_wakeUps; }

    void onFrame()
    {
        const double time = static_cast<double>(m_lastFrame.nsecsElapsed()) / 1e6;
        m_lastFrame.start();
        ++m_frames;
        m_lateFrames += time >= 1.5 * m_interval ? 1 : 0;
        m_longest = std::max(m_longest, time);
    }

private:
    int m_wakeUps = 0;
    QElapsedTimer m_lastFrame;
    double m_interval = 0;
    double m_longest = 0;
    int m_frames = 0;
    int m_lateFrames = 0;
};

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3) {
        return 2;
    }
    const int number = arguments.at(2).toInt();
    return arguments.at(1) == QLatin1String("minute") ? Watch().minute(number) : Watch().frames(number);
}

#include "live_qml.moc"
