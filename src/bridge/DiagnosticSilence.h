#ifndef ZEL_UTILITY_I18N_BRIDGE_DIAGNOSTICSILENCE_H
#define ZEL_UTILITY_I18N_BRIDGE_DIAGNOSTICSILENCE_H

#include <QtCore/QtGlobal>

namespace zel::utility::i18n {

/**
 * While it lives, messages of its thread are dropped and noted: for an attempt that is repeated with messages when it
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

    /** Whether a message was dropped. */
    bool isBroken() const { return m_broken; }

    /** Drops a message, if there is silence on this thread. */
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
