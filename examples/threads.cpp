// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Eight threads format dates at the same time, each with its own formatters.
//
// usage: example_threads
#include <array>
#include <QtCore/QTextStream>
#include <thread>
#include <zel/utility/i18n/CustomDateFormatter.h>
#include <zel/utility/i18n/RelativeDateFormatter.h>

using namespace zel::utility::i18n;

namespace {

const std::array<const char*, 8> locales = {"en_GB", "de_DE", "fr_FR", "pl_PL", "ar_EG", "ja_JP", "he_IL", "th_TH"};

struct Result
{
    QString date;
    QString text;
    int written = 0;
};

int writtenOf(const QStringList& texts)
{
    return static_cast<int>(texts.size() - texts.count(QString()));
}

// A formatter belongs to the thread that created it.
void write(const char* locale, Result& result)
{
    const QDateTime anchor(QDate(2012, 9, 3), QTime(10, 30));
    const CustomDateFormatter date(QStringLiteral("yMMMd"));
    RelativeDateFormatter relative(RelativeDateFormat::TimeCritical);
    relative.setLocale(QLocale(QLatin1String(locale)));
    relative.setAnchorTime(anchor);

    result.date = date.format(anchor);
    result.text = relative.format(anchor.addSecs(-300));
    QList<QDateTime> days;
    for (int day = 0; day < 100; ++day) {
        days.append(anchor.addDays(-day));
    }
    result.written = writtenOf(date.formatAll(days)) + writtenOf(relative.formatAll(days));
}

} // namespace

int main()
{
    std::array<Result, locales.size()> results;
    std::array<std::thread, locales.size()> threads;
    for (std::size_t i = 0; i < threads.size(); ++i) {
        threads[i] = std::thread(write, locales[i], std::ref(results[i]));
    }
    QTextStream out(stdout);
    for (std::size_t i = 0; i < threads.size(); ++i) {
        threads[i].join();
        const Result& result = results[i];
        out << locales[i] << "  " << result.written << " texts  " << result.date << "  " << result.text << '\n';
    }
}
