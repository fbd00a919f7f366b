// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_OTHERREGION_H
#define ZEL_TOOL_OTHERREGION_H

#include "Arguments.h"
#include <memory>
#include <QtCore/QTemporaryDir>

namespace zel::tool {

/** Sets the region of this process to that of --locale, if given. */
class OtherRegion
{
public:
    explicit OtherRegion(const Arguments& arguments);

    static QCommandLineOption option();

private:
    std::unique_ptr<QTemporaryDir> m_directory;
};

} // namespace zel::tool

#endif
