// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_BRIDGE_DIAGNOSTICSILENCE_H
#define ZEL_UTILITY_I18N_BRIDGE_DIAGNOSTICSILENCE_H

#include <QtCore/QtGlobal>

namespace zel::utility::i18n {

/**
 * Drops the messages of its thread while it exists, and remembers whether there were any: for an attempt that is
 * repeated with messages if it fails.
 *
 * @code
 * const DiagnosticSilence silence;
 * prepare();
 * if (silence.hasDropped()) {
 *     formatWithoutPreparation();
 * }
 * @endcode
 */
class DiagnosticSilence
{
    Q_DISABLE_COPY_MOVE(DiagnosticSilence)

public:
    DiagnosticSilence() : m_outer(s_current) { s_current = this; }
    ~DiagnosticSilence() { s_current = m_outer; }

    /** Returns whether a message was dropped. */
    bool hasDropped() const { return m_hasDropped; }

    /** Drops a message; returns false on a thread without an instance. */
    static bool drop()
    {
        if (s_current == nullptr) {
            return false;
        }
        s_current->m_hasDropped = true;
        return true;
    }

private:
    inline static thread_local DiagnosticSilence* s_current = nullptr;
    DiagnosticSilence* m_outer;
    bool m_hasDropped = false;
};

} // namespace zel::utility::i18n

#endif
