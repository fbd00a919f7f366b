// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Changes of the region, from the locale service of the device platform.

#include "settings/RegionNotifier.h"

#include <zel/system/LocaleHandler.h>

namespace zel::utility::i18n {

RegionNotifier::RegionNotifier(QObject* receiver, const char* member, QObject* parent) : QObject(parent)
{
    auto* const handler = new zel::system::LocaleHandler(zel::system::LocaleType::Region, this);
    connect(handler, SIGNAL(changed()), receiver, member);
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): its parent deletes the handler
}

} // namespace zel::utility::i18n
