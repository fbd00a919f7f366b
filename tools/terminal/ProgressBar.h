#ifndef ZEL_TOOL_PROGRESSBAR_H
#define ZEL_TOOL_PROGRESSBAR_H

#include <QtCore/QString>

namespace zel::tool {

/** How far the work is, on standard error where that is a terminal; nothing is left of it in the end. */
class ProgressBar
{
public:
    explicit ProgressBar(int total);
    ~ProgressBar();
    Q_DISABLE_COPY(ProgressBar)

    /** One more is about to be done. */
    void step(const QString& name);

private:
    bool m_visible;
    int m_total;
    int m_done = 0;
};

} // namespace zel::tool

#endif
