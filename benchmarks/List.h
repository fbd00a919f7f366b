// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_BENCHMARKS_LIST_H
#define ZEL_BENCHMARKS_LIST_H

#include <functional>
#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QStringList>
#include <string>
#include <vector>

/** Many moments, and the ways to format them. */
struct List
{
    using Texts = std::function<QStringList(const QList<QDateTime>&)>;

    /** One way, prepared on the thread that uses it and kept. */
    struct Side
    {
        std::string name;
        std::function<Texts()> prepare;
        int most = 100'000; // moments in one measurement
    };

    std::string name;
    std::function<QList<QDateTime>(int count)> moments;
    std::vector<Side> sides; // the first is formatAll()
};

/** Counted phrases, dated texts, and a CustomDateFormatter. */
const std::vector<List>& lists();

/** The lists and sides whose texts differ from formatAll(). */
std::vector<std::string> listMismatches();

#endif
