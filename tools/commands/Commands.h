// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_COMMANDS_H
#define ZEL_TOOL_COMMANDS_H

#include "Command.h"
#include <memory>

namespace zel::tool {

/** `formats`: the patterns of a locale. */
std::unique_ptr<Command> formatsCommand();

/** `format`: moments formatted by a skeleton. */
std::unique_ptr<Command> formatCommand();

/** `relative`: moments relative to an anchor. */
std::unique_ptr<Command> relativeCommand();

/** `percent`: numbers as percentages. */
std::unique_ptr<Command> percentCommand();

/** `watch`: a text that follows the device. */
std::unique_ptr<Command> watchCommand();

/** `gallery`: everything that depends on the locale, for every locale, on one page. */
std::unique_ptr<Command> galleryCommand();

/** `locales`: the locales of ICU and Qt. */
std::unique_ptr<Command> localesCommand();

/** `device`: the settings of the device. */
std::unique_ptr<Command> deviceCommand();

/** `doctor`: the state of the installation. */
std::unique_ptr<Command> doctorCommand();

} // namespace zel::tool

#endif
