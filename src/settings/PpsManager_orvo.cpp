// Settings, read from the settings service of the device platform.

#include "settings/PpsManager.h"

#include "bridge/Diagnostic.h"
#include <QtCore/QString>
#include <QtCore/QVariantMap>
#include <zel/PpsObject.h>

namespace zel::utility::i18n {

namespace {

constexpr const char* updateSignature = "void zel::utility::i18n::PpsManager::onPpsUpdate()";
constexpr const char* constructorSignature =
    "zel::utility::i18n::PpsManager::PpsManager(const char*, const char*, const char*, QObject*)";

} // namespace

class PpsManager::Source : public zel::PpsObject
{
public:
    using PpsObject::PpsObject;
};

PpsManager::PpsManager(const char* path, const char* map, const char* key, QObject* parent)
    : QObject(parent),
      m_source(std::make_unique<Source>(QString::fromLatin1(path), this)),
      m_path(path),
      m_map(map),
      m_key(key)
{
    if (!m_source->open(zel::PpsOpenMode::Subscribe)) {
        Diagnostic::write(QtCriticalMsg, constructorSignature, "failed to open PPS at", m_path, " : ",
                          m_source->errorString());
        m_source.reset();
        return;
    }
    if (!connect(m_source.get(), SIGNAL(readyRead()), this, SLOT(onPpsUpdate()))) {
        Diagnostic::write(QtCriticalMsg, constructorSignature, "failed to connect to PPS channel for", m_path);
        m_source->setReadyReadEnabled(false);
    }
    onPpsUpdate();
}

PpsManager::~PpsManager() = default;

QVariant PpsManager::value() const
{
    const std::lock_guard lock(m_valueMutex);
    return m_value;
}

void PpsManager::onPpsUpdate()
{
    if (!m_source) {
        Diagnostic::write(QtCriticalMsg, updateSignature, "called without a PpsObject");
        return;
    }
    bool ok = false;
    const QByteArray payload = m_source->read(&ok);
    if (!ok) {
        Diagnostic::write(QtWarningMsg, updateSignature, "failed to read PPS at", m_path, " : ",
                          m_source->errorString());
        return;
    }
    const QVariantMap record = zel::PpsObject::decode(payload, &ok);
    if (!ok) {
        Diagnostic::write(QtWarningMsg, updateSignature, "failed to decode PPS payload from", m_path);
        return;
    }
    setValue(record.value(QString::fromLatin1(m_map)).toMap().value(QString::fromLatin1(m_key)));
}

} // namespace zel::utility::i18n
