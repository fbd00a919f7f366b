// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_SETTINGS_REGIONNOTIFIER_H
#define ZEL_UTILITY_I18N_SETTINGS_REGIONNOTIFIER_H

#include <QtCore/QObject>

namespace zel::utility::i18n {

/**
 * Calls a signal or slot of a receiver whenever the user's region locale changes, while it exists. Changes arrive
 * through the event loop of the thread that created it.
 *
 * @code
 * RegionNotifier notifier(receiver, SLOT(onRegionChange()), nullptr);
 * @endcode
 */
class RegionNotifier : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RegionNotifier)

public:
    RegionNotifier(QObject* receiver, const char* member, QObject* parent);
    ~RegionNotifier() override = default;
};

} // namespace zel::utility::i18n

#endif
