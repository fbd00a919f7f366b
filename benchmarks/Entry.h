#ifndef ZEL_BENCHMARKS_ENTRY_H
#define ZEL_BENCHMARKS_ENTRY_H

#include <functional>
#include <QtCore/QString>
#include <string>
#include <vector>

/** An entry of the library beside the calls of ICU and Qt that it cannot do without, on the same input. */
struct Entry
{
    /** What the texts of the two have in common. */
    enum Texts { Same, Different };

    std::string name;
    std::function<QString()> ours;
    std::function<QString()> floor;
    Texts texts;
};

/** Every entry. Device settings and formatters are set up first, and stay for the rest of the process. */
const std::vector<Entry>& entries();

/** The names of the entries whose two sides give different texts, although they do the same. */
std::vector<std::string> mismatches();

#endif
