#ifndef ZEL_HOST_ENVIRONMENTSETTING_H
#define ZEL_HOST_ENVIRONMENTSETTING_H

#include <zel/host/Setting.h>

namespace zel::host {

/** A setting that the environment chose for this process. It is looked at whenever the value is asked for. */
class EnvironmentSetting : public Setting
{
    Q_OBJECT

public:
    /** Whether the environment has the variable, and the process listens to it. */
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
