// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include <zel/system/LocaleHandler.h>

#include "RegionCache.h"
#include <QtCore/QMetaMethod>
#include <QtCore/QTimer>
#include <zel/PpsObject.h>

namespace zel::system {

namespace {

constexpr int writeIntervalMs = 20; // how long an object may be half written

} // namespace

LocaleHandler::LocaleHandler(LocaleType::Type type, QObject* parent) : QObject(parent), m_type(type) {}

LocaleHandler::~LocaleHandler() = default;

QLocale LocaleHandler::locale() const
{
    return m_type == LocaleType::Region ? RegionCache::instance().locale() : QLocale::c();
}

void LocaleHandler::connectNotify(const QMetaMethod& signal)
{
    if (m_type == LocaleType::Region && signal == QMetaMethod::fromSignal(&LocaleHandler::changed)) {
        // The connection may be made on another thread than the handler's.
        QMetaObject::invokeMethod(this, "startWatching");
    }
}

void LocaleHandler::startWatching()
{
    if (m_object != nullptr) {
        return;
    }
    m_object = new PpsObject(QString::fromLatin1(RegionCache::objectPath), this);
    bool isConnected = connect(m_object, SIGNAL(readyRead()), this, SLOT(onObjectChanged()));
    m_object->open(PpsOpenMode::Subscribe);
    RegionCache& cache = RegionCache::instance();
    cache.refresh();
    // From the cache, not the object: all handlers are notified, whichever reads a change first. Queued, as it may be
    // emitted inside a query.
    isConnected = connect(&cache, SIGNAL(changed()), this, SIGNAL(changed()), Qt::QueuedConnection) && isConnected;
    if (!isConnected) {
        qCritical("zel::system::LocaleHandler cannot report changes of the region");
    }
}

void LocaleHandler::onObjectChanged()
{
    if (!RegionCache::instance().refresh()) {
        QTimer::singleShot(writeIntervalMs, this, SLOT(onObjectChanged()));
    }
}

} // namespace zel::system
