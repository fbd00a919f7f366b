// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_FINDING_H
#define ZEL_TOOL_FINDING_H

#include <QtCore/QString>

namespace zel::tool {

/** The result of checking one part of the installation or the device. */
struct Finding
{
    enum Status {
        Good,
        Note, ///< not a problem, but worth knowing
        Wrong
    };

    Status status;
    QString subject;
    QString text;   ///< the value with its source, or the problem
    QString advice; ///< the remedy; empty if there is none
};

} // namespace zel::tool

#endif
