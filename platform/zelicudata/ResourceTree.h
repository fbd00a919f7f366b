#ifndef ZEL_ICUDATA_RESOURCETREE_H
#define ZEL_ICUDATA_RESOURCETREE_H

#include <map>
#include <string>

namespace zel::icudata {

/** Tables of tables of texts: a table where it has children, otherwise a text. */
struct ResourceTree
{
    std::u16string text;
    std::map<std::string, ResourceTree> children;

    bool isTable() const { return !children.empty(); }
};

} // namespace zel::icudata

#endif
