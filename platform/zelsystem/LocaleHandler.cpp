#include <zel/system/LocaleHandler.h>

#include "RegionCache.h"
#include <QtCore/QMetaMethod>
#include <zel/PpsObject.h>

namespace zel::system {

class LocaleHandler::Watch
{
public:
    explicit Watch(QObject* parent) : object(QStringLiteral("/pps/system/locale"), parent) {}

    PpsObject object;
    QLocale last;
};

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
    if (m_watch) {
        return;
    }
    m_watch = std::make_unique<Watch>(this);
    connect(&m_watch->object, SIGNAL(readyRead()), this, SLOT(onObjectChanged()));
    if (!m_watch->object.open(PpsOpenMode::Subscribe)) {
        qWarning("zel::system::LocaleHandler: changes are not noticed: %s",
                 qUtf8Printable(m_watch->object.errorString()));
    }
    m_watch->last = locale();
}

void LocaleHandler::onObjectChanged()
{
    const QLocale now = locale();
    if (now != m_watch->last) {
        m_watch->last = now;
        Q_EMIT changed();
    }
}

} // namespace zel::system
