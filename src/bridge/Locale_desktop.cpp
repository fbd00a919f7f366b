// The region locale of a Linux host.

#include "bridge/Locale.h"

namespace zel::utility::i18n {

QLocale Locale::region()
{
    return QLocale::system();
}

} // namespace zel::utility::i18n
