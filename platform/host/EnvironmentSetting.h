// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_HOST_ENVIRONMENTSETTING_H
#define ZEL_HOST_ENVIRONMENTSETTING_H

#include <zel/host/Setting.h>

namespace zel::host {

/** A setting from an environment variable, which is read by every query. */
class EnvironmentSetting : public Setting
{
    Q_OBJECT

public:
    /** Whether the variable is set and the process has no raised privileges. */
    static bool isInUse(const char* variable);

    explicit EnvironmentSetting(const char* variable) : m_variable(variable) {}

    QVariant value() const override;
    QString source() const override { return QString::fromLatin1(m_variable); }
    std::unique_ptr<QObject> listen() override { return nullptr; }

private:
    const char* const m_variable;
};

} // namespace zel::host

#endif
