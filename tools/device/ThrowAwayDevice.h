// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_THROWAWAYDEVICE_H
#define ZEL_TOOL_THROWAWAYDEVICE_H

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

namespace zel::tool {

/**
 * A simulated device: the settings of the process are those of a temporary directory, which lives as long as this
 * object. The process does not get its former settings back.
 */
class ThrowAwayDevice
{
public:
    /** @param settings of the form KEY=VALUE,... */
    explicit ThrowAwayDevice(const QString& settings);

private:
    QTemporaryDir m_root;
};

} // namespace zel::tool

#endif
