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

    // Reads the object into the manager's value. A broken object is reported each time it is announced, and otherwise
    // once. Returns false if the object is being written and cannot be read.
    bool update(PpsManager& manager, bool announced);

    std::shared_mutex mutex; // guards everything except notification

private:
    void report(const char* path, const QString& error, const QByteArray& payload, bool again);

    QByteArray m_failure; // what was last reported
};

bool PpsManager::Source::update(PpsManager& manager, bool announced)
{
    const DeferredMessages messages;
    std::unique_lock lock(mutex);
    bool ok = false;
    const QByteArray payload = read(&ok);
    const QString error = ok ? QString() : errorString();
    const QVariantMap record = decode(payload, &ok);
    if (!ok) {
        const bool unsettled = !announced && !isCurrent();
        if (!unsettled || !error.isEmpty()) {
            report(manager.m_path, error, payload, announced);
        }
        return !unsettled;
    }
    m_failure.clear();
    const QVariantMap attributes = record.value(QString::fromLatin1(manager.m_map)).toMap();
    const bool isOther = manager.setValue(attributes.value(QString::fromLatin1(manager.m_key)));
    lock.unlock();
    if (isOther) {
        Q_EMIT manager.changed();
    }
    return true;
}

void PpsManager::Source::report(const char* path, const QString& error, const QByteArray& payload, bool again)
{
    const QByteArray failure = error.toUtf8() + payload;
    const bool isNews = failure != std::exchange(m_failure, failure);
    if (!isNews && !again) {
        return;
    }
    if (error.isEmpty()) {
        Diagnostic::write(QtWarningMsg, updateSignature, "failed to decode PPS payload from", path);
    } else {
        Diagnostic::write(QtWarningMsg, updateSignature, "failed to read PPS at", path, " : ", error);
    }
}

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
    return m_source->update(*this, false);
}

void PpsManager::onPpsUpdate()
{
    if (!m_source) {
        Diagnostic::write(QtCriticalMsg, updateSignature, "called without a PpsObject");
        return;
    }
    m_source->update(*this, true);
}

} // namespace zel::utility::i18n
