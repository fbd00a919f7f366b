// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Changes of the region of the Linux host.

#include "settings/RegionNotifier.h"

#include "settings/HostReporter.h"
#include <zel/host/Settings.h>

namespace zel::utility::i18n {

RegionNotifier::RegionNotifier(QObject* receiver, const char* member, QObject* parent) : QObject(parent)
{
    QObject* const region = zel::host::region(&reportOfHost).release();
    region->setParent(this);
    connect(region, SIGNAL(changed()), receiver, member);
}

} // namespace zel::utility::i18n
