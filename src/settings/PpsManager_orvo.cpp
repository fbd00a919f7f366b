// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Settings of the device platform.

#include "settings/PpsManager.h"

#include "bridge/DeferredMessages.h"
#include "bridge/Diagnostic.h"
#include <mutex>
#include <QtCore/QString>
#include <QtCore/QVariantMap>
#include <shared_mutex>
#include <utility>
#include <zel/PpsObject.h>

namespace zel::utility::i18n {

namespace {

constexpr const char* updateSignature = "void zel::utility::i18n::PpsManager::onPpsUpdate()";

} // namespace

class PpsManager::Source : public zel::PpsObject
{
public:
    using PpsObject::PpsObject;

    std::shared_mutex mutex; // guards everything except notification
    QByteArray failure;      // what was last reported
};

PpsManager::PpsManager(const char* path, const char* map, const char* key, HostSetting /*host*/, QObject* parent)
    : QObject(parent),
      m_source(std::make_unique<Source>(QString::fromLatin1(path), this)),
      m_path(path),
      m_map(map),
      m_key(key)
{
    constexpr const char* signature =
        "zel::utility::i18n::PpsManager::PpsManager(const char*, const char*, const char*, QObject*)";
    if (!m_source->open(zel::PpsOpenMode::Subscribe)) {
        Diagnostic::write(QtCriticalMsg, signature, "failed to open PPS at", m_path, " : ", m_source->errorString());
        m_source.reset();
        return;
    }
    if (!connect(m_source.get(), SIGNAL(readyRead()), this, SLOT(onPpsUpdate()))) {
        Diagnostic::write(QtCriticalMsg, signature, "failed to connect to PPS channel for", m_path);
        m_source->setReadyReadEnabled(false);
    }
    onPpsUpdate();
}

PpsManager::~PpsManager() = default;

bool PpsManager::refresh()
{
    if (!m_source) {
        return true;
    }
    {
        // Threads check the file in parallel; only a change makes them wait for each other.
        const std::shared_lock lock(m_source->mutex);
        if (m_source->isCurrent()) {
            return true;
        }
    }
    return update(false);
}

void PpsManager::onPpsUpdate()
{
    if (!m_source) {
        Diagnostic::write(QtCriticalMsg, updateSignature, "called without a PpsObject");
        return;
    }
    update(true);
}

bool PpsManager::update(bool announced)
{
    const DeferredMessages messages;
    std::unique_lock lock(m_source->mutex);
    bool ok = false;
    const QByteArray payload = m_source->read(&ok);
    const QString error = ok ? QString() : m_source->errorString();
    const QVariantMap record = zel::PpsObject::decode(payload, &ok);
    if (!ok) {
        const bool unsettled = !announced && !m_source->isCurrent();
        if (!unsettled || !error.isEmpty()) {
            report(error, payload, announced);
        }
        return !unsettled;
    }
    m_source->failure.clear();
    const bool isOther = setValue(record.value(QString::fromLatin1(m_map)).toMap().value(QString::fromLatin1(m_key)));
    lock.unlock();
    if (isOther) {
        Q_EMIT changed();
    }
    return true;
}

void PpsManager::report(const QString& error, const QByteArray& payload, bool again)
{
    const QByteArray failure = error.toUtf8() + payload;
    const bool isNews = failure != std::exchange(m_source->failure, failure);
    if (!isNews && !again) {
        return;
    }
    if (error.isEmpty()) {
        Diagnostic::write(QtWarningMsg, updateSignature, "failed to decode PPS payload from", m_path);
    } else {
        Diagnostic::write(QtWarningMsg, updateSignature, "failed to read PPS at", m_path, " : ", error);
    }
}

} // namespace zel::utility::i18n
