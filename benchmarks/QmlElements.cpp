// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "QmlElements.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QDateTime>
#include <QtCore/QVariant>

namespace {

constexpr int count = 10000;

} // namespace

QmlElements::QmlElements(qint64 seconds)
{
    m_engine.addImportPath(QStringLiteral(ZEL_QML_MODULES));
    m_component.setData("import Zel.Utility.I18n\nRelativeDate {}", QUrl());
    const QDateTime now = QDateTime::currentDateTime();
    for (int i = 0; i < count; ++i) {
        const qint64 age =
            seconds * 1000 / count * i + i * 7919LL % 60000; // in ms; no two texts change at the same one
        m_elements.emplace_back(
            m_component.createWithInitialProperties({{QStringLiteral("moment"), now.addMSecs(-age)}}));
    }
    call("renewWaiting");
}

void QmlElements::renew()
{
    call("renewAll");
    while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) {
    }
}

void QmlElements::call(const char* slot)
{
    for (QObject* const child : m_engine.children()) {
        if (child->inherits("zel::utility::i18n::qml::Timekeeper")) {
            QMetaObject::invokeMethod(child, slot);
        }
    }
}
