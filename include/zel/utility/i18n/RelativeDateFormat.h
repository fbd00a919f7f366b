// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_RELATIVEDATEFORMAT_H
#define ZEL_UTILITY_I18N_RELATIVEDATEFORMAT_H

#include <QtCore/QObject>
#include <zel/utility/i18n/Global.h>

namespace zel::utility::i18n {

/**
 * Granularity of relative dates.
 *
 * @code
 * #include <zel/utility/i18n/RelativeDateFormatter.h>
 *
 * using namespace zel::utility::i18n;
 * const RelativeDateFormatter formatter(RelativeDateFormat::NonTimeCritical);
 * @endcode
 */
namespace RelativeDateFormat {
Q_NAMESPACE_EXPORT(ZEL_UTILITY_I18N_EXPORT)

/** The two formatting tables of RelativeDateFormatter. */
enum Type : int {
    TimeCritical = 1,   ///< down to minutes, days with a time of day: for messages, calls
    NonTimeCritical = 2 ///< days and coarser, without a time of day: for files, notes
};
Q_ENUM_NS(Type)

} // namespace RelativeDateFormat
} // namespace zel::utility::i18n

#endif
