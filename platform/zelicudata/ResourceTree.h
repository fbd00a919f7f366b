// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_ICUDATA_RESOURCETREE_H
#define ZEL_ICUDATA_RESOURCETREE_H

#include <map>
#include <string>

namespace zel::icudata {

/** A tree of tables and texts: a table if it has children, otherwise a text. */
struct ResourceTree
{
    std::u16string text;
    std::map<std::string, ResourceTree> children;

    bool isTable() const { return !children.empty(); }
};

} // namespace zel::icudata

#endif
