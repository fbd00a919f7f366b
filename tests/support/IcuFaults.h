// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TESTS_ICUFAULTS_H
#define ZEL_TESTS_ICUFAULTS_H

#include <array>
#include <QtCore/QList>
#include <QtCore/QScopeGuard>
#include <unicode/utypes.h>

/**
 * Makes chosen ICU calls of the code under test fail. The linker's --wrap redirects the calls of the code under test,
 * but not those that ICU makes itself.
 */
class IcuFaults
{
public:
    enum Function {
        SetKeywordValue,
        CreateDateTimeInstance,
        CreatePercentInstance,
        CreateGenerator,
        GetBestPattern,
        CreateDateFormat,
        FormatDate,
        OpenBundle,
        GetResource,
        GetString,
        ForLocale,
        CreateNumberFormat,
        GetGMT,
        CreateCalendar,
        SetTime,
        FunctionCount
    };

    /** The effect of a call: success, failure after the work, null without an error, or immediate failure. */
    static constexpr int Works = U_ZERO_ERROR;
    static constexpr int FailsLate = U_INTERNAL_PROGRAM_ERROR;
    static constexpr int ReturnsNull = -1;
    static constexpr int FailsAtOnce = U_MEMORY_ALLOCATION_ERROR;

    /** The effects of the next calls of a function; later calls succeed. */
    static void arm(Function function, const QList<int>& fates) { s_fates.at(function) = fates; }
    static bool allTaken(Function function) { return s_fates.at(function).isEmpty(); }

    static int next(Function function)
    {
        QList<int>& fates = s_fates.at(function);
        return fates.isEmpty() ? Works : fates.takeFirst();
    }

    template <typename Real>
    static auto call(Function function, UErrorCode& error, const Real& real)
    {
        const int fate = next(function);
        // With a failed status, ICU only deletes objects that it was to adopt.
        UErrorCode hidden = U_MEMORY_ALLOCATION_ERROR;
        if (fate > Works && fate != FailsLate) {
            error = static_cast<UErrorCode>(fate);
        }
        const auto fail = qScopeGuard([&error, fate] {
            if (fate == FailsLate) {
                error = U_INTERNAL_PROGRAM_ERROR;
            }
        });
        return real(fate == ReturnsNull ? hidden : error);
    }

private:
    inline static std::array<QList<int>, FunctionCount> s_fates;
};

#endif
