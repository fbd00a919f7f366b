#ifndef ZEL_TOOL_LOCALETITLE_H
#define ZEL_TOOL_LOCALETITLE_H

#include <QtCore/QString>

namespace zel::tool {

/** The English name of a locale, as in "German (Germany)". */
QString localeTitle(const QString& name);

} // namespace zel::tool

#endif
