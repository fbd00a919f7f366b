// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "LocaleChangeFilter.h"

#include "Connection.h"
#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>

namespace zel::host {

void LocaleChangeFilter::call(QObject* receiver, const char* member, QObject* owner, Reporter reporter,
                              Qt::ConnectionType type)
{
    const QCoreApplication* const application = QCoreApplication::instance();
    if (application == nullptr) {
        return;
    }
    // An application's events can be filtered on its thread only.
    auto* const filter = new LocaleChangeFilter;
    filter->moveToThread(application->thread());
    constexpr const char* signature = "static void zel::host::LocaleChangeFilter::call(QObject*, const char*, "
                                      "QObject*, Reporter, Qt::ConnectionType)";
    checkConnection(reporter, connect(filter, SIGNAL(changed()), receiver, member, type), signature,
                    "LocaleChangeFilter::changed()");
    checkConnection(reporter, connect(owner, SIGNAL(destroyed()), filter, SLOT(stop())), signature,
                    "QObject::destroyed()");
    QMetaObject::invokeMethod(filter, "start");
}

void LocaleChangeFilter::start()
{
    QCoreApplication* const application = QCoreApplication::instance();
    if (application == nullptr) {
        deleteLater();
        return;
    }
    application->installEventFilter(this);
    setParent(application);
}

// Disconnects at once: deleteLater() alone would let changes through until the event loop runs.
void LocaleChangeFilter::stop()
{
    disconnect();
    deleteLater();
}

// An event filter of the application receives the events of all objects of its thread.
bool LocaleChangeFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parent() && event->type() == QEvent::LocaleChange) {
        Q_EMIT changed();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace zel::host
