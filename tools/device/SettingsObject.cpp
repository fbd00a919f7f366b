// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "device/SettingsObject.h"

#include "terminal/Failure.h"
#include <QtCore/QFileInfo>
#include <zel/PpsObject.h>

namespace zel::tool {

SettingsObject::SettingsObject(const QString& path) : m_path(path)
{
    read();
}

QString SettingsObject::name() const
{
    return QLatin1Char('@') + m_path.section(QLatin1Char('/'), -1);
}

void SettingsObject::read()
{
    PpsObject object(m_path);
    if (!object.open(PpsOpenMode::Subscribe)) {
        fail(Unreadable, object.errorString());
        return;
    }
    bool ok = false;
    const QString file = PpsObject::filePath(m_path);
    const QByteArray contents = object.read(&ok);
    if (!ok) {
        fail(QFileInfo::exists(file) ? Torn : Missing, object.errorString());
        return;
    }
    QString error;
    const QVariantMap record = PpsObject::decode(contents, &ok, &error);
    if (!ok) {
        fail(Torn, file + QLatin1String(": ") + error);
    } else if (!record.contains(name())) {
        fail(Torn, file + QStringLiteral(": line 1: the object is %1, not %2").arg(record.firstKey(), name()));
    }
    m_attributes = record.value(name()).toMap();
}

void SettingsObject::fail(State state, const QString& error)
{
    m_state = state;
    m_error = error;
}

void SettingsObject::write(const QVariantMap& attributes) const
{
    PpsObject object(m_path);
    bool ok = false;
    QString error;
    const QByteArray contents = PpsObject::encode({{name(), attributes}}, &ok, &error);
    if (!ok) {
        throw Failure(PpsObject::filePath(m_path) + QLatin1String(": ") + error);
    }
    if (!object.open(PpsOpenMode::Publish) || !object.write(contents)) {
        throw Failure(object.errorString());
    }
}

} // namespace zel::tool
