// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_BRIDGE_ICUCALL_H
#define ZEL_UTILITY_I18N_BRIDGE_ICUCALL_H

#include "bridge/Diagnostic.h"
#include <QtCore/QByteArray>
#include <unicode/utypes.h>

namespace zel::utility::i18n {

/**
 * Reports a failed ICU call: a message with its error, or that it returned no object, and a message with the
 * consequence. Only calls whose messages have another form are reported without it.
 *
 * @code
 * constexpr IcuCall call = {"icu::Calendar::setTime( UDate, UErrorCode & )"};
 * if (status.isFailure()) {
 *     call.report(status, signature, "failed to set up a calendar");
 * }
 * @endcode
 */
struct IcuCall
{
    /** The spelling of the first message after the call: "f(): U_ERROR" or "f() : U_ERROR". */
    enum Spelling { Joined, Spaced };

    const char* name;
    Spelling spelling = Joined;
    QtMsgType failure = QtWarningMsg;
    QtMsgType consequence = QtWarningMsg;

    /** The items of the second message; none for no second message. */
    template <typename... Items>
    void report(UErrorCode status, const Items&... items) const
    {
        if (U_SUCCESS(status)) {
            Diagnostic::write(failure, name, "returned a NULL pointer without setting an error code!");
        } else {
            const QByteArray call = QByteArray(name) + (spelling == Joined ? ":" : " :");
            Diagnostic::write(failure, "Error in calling", call.constData(), u_errorName(status));
        }
        if constexpr (sizeof...(items) > 0) {
            Diagnostic::write(consequence, items...);
        }
    }
};

} // namespace zel::utility::i18n

#endif
