// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_BENCHMARKS_ENTRY_H
#define ZEL_BENCHMARKS_ENTRY_H

#include <functional>
#include <QtCore/QString>
#include <string>
#include <vector>

/** An entry of the library and its floor, with the same input. */
struct Entry
{
    /** The relation of the two texts. */
    enum Texts { Same, Different };

    std::string name;
    std::function<QString()> ours;
    std::function<QString()> floor;
    Texts texts;
};

/** Every entry. Device settings and formatters are set up first and kept for the rest of the process. */
const std::vector<Entry>& entries();

/** The names of the entries whose two sides give different texts, although they do the same. */
std::vector<std::string> mismatches();

#endif
