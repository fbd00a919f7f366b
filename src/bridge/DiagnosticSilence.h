// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_BRIDGE_DIAGNOSTICSILENCE_H
#define ZEL_UTILITY_I18N_BRIDGE_DIAGNOSTICSILENCE_H

#include <QtCore/QtGlobal>

namespace zel::utility::i18n {

/**
 * Drops and counts the messages of its thread while it exists: for an attempt that is repeated with messages if it
 * fails.
 *
 * @code
 * const DiagnosticSilence silence;
 * prepare();
 * if (silence.isBroken()) {
 *     formatWithoutPreparation();
 * }
 * @endcode
 */
class DiagnosticSilence
{
public:
    DiagnosticSilence() : m_outer(s_current) { s_current = this; }
    ~DiagnosticSilence() { s_current = m_outer; }
    Q_DISABLE_COPY_MOVE(DiagnosticSilence)

    /** Returns whether a message was dropped. */
    bool isBroken() const { return m_broken; }

    /** Drops a message; returns false on a thread without an instance. */
    static bool drop()
    {
        if (s_current == nullptr) {
            return false;
        }
        s_current->m_broken = true;
        return true;
    }

private:
    inline static thread_local DiagnosticSilence* s_current = nullptr;
    DiagnosticSilence* m_outer;
    bool m_broken = false;
};

} // namespace zel::utility::i18n

#endif
