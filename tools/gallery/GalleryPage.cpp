// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "gallery/GalleryPage.h"

#include "texts/KnownLocale.h"
#include <algorithm>
#include <memory>
#include <unicode/brkiter.h>
#include <unicode/errorcode.h>
#include <unicode/locid.h>
#include <unicode/uversion.h>

namespace zel::tool {

namespace {

constexpr const char* head = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Gallery of locales</title>
<style>
:root{color-scheme:light dark;--paper:#f6f7f9;--card:#fff;--ink:#1b1f24;--faint:#5b6472;--line:#e3e6eb;--accent:#0b6bcb;
--mark:#fff4d6;--edge:#d99a00;--change:#ddf0dd;--rim:#3c8a3c}
@media(prefers-color-scheme:dark){:root{--paper:#15181c;--card:#1d2126;--ink:#e6e9ee;--faint:#97a1af;--line:#2d333b;
--accent:#6cb2ff;--mark:#3a3015;--edge:#e0a62a;--change:#1c3a24;--rim:#6fbf73}}
*{box-sizing:border-box}
body{margin:0;background:var(--paper);color:var(--ink);font:15px/1.45 system-ui,"Noto Sans",sans-serif}
header{position:sticky;top:0;z-index:1;display:flex;flex-wrap:wrap;gap:.3rem 1.2rem;align-items:center;padding:.7rem 1.2rem;
background:var(--card);border-bottom:1px solid var(--line)}
h1{margin:0;font-size:1.15rem}
label,output{white-space:nowrap}
output{margin-inline-start:.6rem}
header p{margin:0;flex:1;min-width:16rem;color:var(--faint)}
input[type=search]{font:inherit;width:15rem;max-width:100%;padding:.3rem .6rem;border:1px solid var(--line);
border-radius:.4rem;background:var(--paper);color:inherit}
main{max-width:84rem;margin:auto;padding:1rem}
section{margin-bottom:1rem;padding:1rem 1.2rem;background:var(--card);border:1px solid var(--line);border-radius:.6rem;
content-visibility:auto;contain-intrinsic-size:auto 48rem;scroll-margin-top:5rem}
h2{margin:0 0 .6rem;font-size:1.1rem;display:flex;flex-wrap:wrap;gap:0 .8rem;align-items:baseline}
h2 a{color:var(--accent);text-decoration:none}
h2 span{font-weight:400;color:var(--faint)}
.two{display:grid;grid-template-columns:repeat(auto-fit,minmax(min(30rem,100%),1fr));gap:1rem 2rem;align-items:start;
overflow-x:auto}
table{width:100%;border-collapse:collapse}
th,td{padding:.22rem .4rem;text-align:start;vertical-align:baseline;border-top:1px solid var(--line)}
caption{padding:.22rem .4rem;text-align:start;font-weight:600}
thead th{border:0;font-weight:600;color:var(--faint)}
tbody th{width:9.5rem;font-weight:400;color:var(--faint);font-size:.87rem}
tbody th.group{padding-top:.7rem;border:0;font-weight:600;font-size:.75rem;letter-spacing:.04em;text-transform:uppercase}
td:lang(ja),td:lang(ko),td:lang(zh),td:lang(yue){word-break:keep-all}
code{display:block;width:fit-content;direction:ltr;unicode-bidi:isolate;color:var(--faint);
font:.8rem/1.3 ui-monospace,"Noto Sans Mono",monospace}
.mark>*{background:var(--mark)}
.mark th{border-inline-start:3px solid var(--edge)}
.changed>*{background:var(--change)}
.changed th{border-inline-start:3px solid var(--rim)}
em,del{display:block;font-size:.8rem;color:var(--faint);text-decoration:none}
em{direction:ltr}
@media(max-width:40rem){header{position:static;padding:.6rem}header p{min-width:100%}main{padding:.4rem}
section{padding:.6rem}th,td{padding:.22rem .2rem}tbody th{width:6rem;font-size:.75rem}
td{font-size:.87rem}code{font-size:.72rem}}
[hidden]{display:none!important}
@media print{header{position:static}form{display:none}section{content-visibility:visible}}
</style>
</head>
<body>
)";

// The filter shows the locales with a word of the title that starts with the input, matching names first.
constexpr const char* tail = R"(</main>
<script>
(function () {
  var form = document.querySelector('form'), search = form.elements.search, main = document.querySelector('main');
  var boxes = Array.prototype.slice.call(form.querySelectorAll('[type=checkbox]'));
  var sections = Array.prototype.map.call(document.querySelectorAll('section'), function (section, place) {
    var language = section.querySelector('h2 span').textContent.toLowerCase();
    return { node: section, place: place, name: section.id.toLowerCase(), language: language,
             words: ' ' + section.querySelector('h2').textContent.toLowerCase().replace(/[(),\s]+/g, ' ') };
  });
  function rank(section, wanted) {
    return section.name === wanted ? 0 : section.name.indexOf(wanted) === 0 ? 1 :
           section.language.indexOf(wanted) === 0 ? 2 : 3;
  }
  function apply() {
    var wanted = search.value.trim().toLowerCase().replace(/-/g, '_'), shown = 0, next = main.firstElementChild;
    sections.sort(function (one, other) {
      return rank(one, wanted) - rank(other, wanted) || one.place - other.place;
    }).forEach(function (section) {
      var hidden = section.words.indexOf(' ' + wanted) < 0 ||
          boxes.some(function (box) { return box.checked && !section.node.querySelector('.' + box.name); });
      section.node.hidden = hidden;
      shown += hidden ? 0 : 1;
      if (section.node === next) {
        next = next.nextElementSibling;
      } else {
        main.insertBefore(section.node, next);
      }
    });
    form.elements.count.value = shown + ' shown';
  }
  function keep() {
    var typed = search.value.trim();
    history.replaceState(null, '', typed ? '#filter=' + encodeURIComponent(typed) : location.pathname + location.search);
    apply();
  }
  function follow() {
    var match = /^#filter=(.*)$/.exec(location.hash);
    try {
      search.value = match ? decodeURIComponent(match[1]) : '';
    } catch (error) { // a percent sign, typed into the address
      search.value = match[1];
    }
    apply();
    var target = !match && document.getElementById(location.hash.slice(1));
    if (target) {
      target.scrollIntoView();
    }
  }
  form.hidden = false;
  search.addEventListener('input', keep);
  boxes.forEach(function (box) { box.addEventListener('change', apply); });
  form.addEventListener('submit', function (event) { event.preventDefault(); });
  window.addEventListener('hashchange', follow);
  follow();
})();
</script>
</body>
</html>
)";

QByteArray escaped(const QString& text)
{
    return text.toHtmlEscaped().toUtf8();
}

bool isIdeographic(QChar character)
{
    return character.script() == QChar::Script_Han || character.script() == QChar::Script_Hiragana ||
           character.script() == QChar::Script_Katakana;
}

// Text without blanks, with a line break opportunity after each word.
QByteArray breakable(const QString& text)
{
    if (std::none_of(text.begin(), text.end(), &isIdeographic)) {
        return escaped(text);
    }
    icu::ErrorCode error;
    const std::unique_ptr<icu::BreakIterator> words(
        icu::BreakIterator::createWordInstance(icu::Locale::getRoot(), error));
    if (error.isFailure()) {
        return escaped(text);
    }
    const icu::UnicodeString all(reinterpret_cast<const char16_t*>(text.utf16()), static_cast<int32_t>(text.size()));
    words->setText(all);
    QByteArray html;
    for (int32_t begin = words->first(), end = words->next(); end != icu::BreakIterator::DONE;
         begin = end, end = words->next()) {
        html += escaped(text.mid(begin, end - begin)) + (isIdeographic(text.at(end - 1)) ? "<wbr>" : "");
    }
    return html;
}

// English, in a section that may run from right to left. A long skeleton may break in front of its weekday.
QByteArray label(const QString& text)
{
    return "<bdi>" + escaped(text).replace("EEEE", "<wbr>EEEE") + "</bdi>";
}

// The text, and its pattern unless that is known.
QByteArray shown(const GalleryText& text, const QString& known)
{
    const bool hasPattern = !text.pattern.isEmpty() && text.pattern != known;
    return breakable(text.text) + (hasPattern ? "<code lang=en>" + breakable(text.pattern) + "</code>" : QByteArray());
}

QByteArray cell(const GalleryRow& row, int columns)
{
    QByteArray html = columns > 1 ? "<td colspan=" + QByteArray::number(columns) + '>' : QByteArray("<td>");
    html += shown(row.now, row.name);
    if (row.before) {
        html += "<del>" + label(QStringLiteral("before: ")) + shown(*row.before, row.now.pattern) + "</del>";
    }
    for (const QString& note : row.notes) {
        html += "<em lang=en>" + escaped(note).replace("::", "::<wbr>") + "</em>";
    }
    return html;
}

QByteArray tableRow(const GalleryEntry& entry, int row)
{
    const QList<int> distinct = entry.distinctClocks(row);
    const bool isMarked =
        std::any_of(distinct.begin(), distinct.end(), [&](int c) { return !entry.clocks[c][row].notes.isEmpty(); });
    const bool isChanged =
        std::any_of(distinct.begin(), distinct.end(), [&](int c) { return entry.clocks[c][row].before.has_value(); });
    const GalleryRow& first = entry.clocks.first()[row];
    const QByteArray classes = QByteArray(isMarked ? " mark" : "") + (isChanged ? " changed" : "");
    QByteArray html = classes.isEmpty() ? QByteArray("<tr>") : "<tr class=\"" + classes.mid(1) + "\">";
    html += "<th scope=row lang=en>" + label(first.name);
    const int columns = distinct.size() == 1 ? static_cast<int>(entry.clocks.size()) : 1;
    for (const int clock : distinct) {
        html += cell(entry.clocks[clock][row], columns);
    }
    return html + '\n';
}

struct Heads
{
    const char* caption;
    const char* labels; ///< of the first column
};

// A range of rows, one table body per group.
QByteArray table(const GalleryEntry& entry, const QStringList& clocks, const Heads& heads, int from, int to)
{
    const QList<GalleryRow>& rows = entry.clocks.first();
    QByteArray html = QByteArray("<table><caption lang=en>") + label(QLatin1String(heads.caption)) +
                      "</caption><thead lang=en><tr><th scope=col>" + label(QLatin1String(heads.labels));
    for (const QString& clock : clocks) {
        html += "<th scope=col>" + label(clock);
    }
    for (int row = from; row < to; ++row) {
        if (row == from || rows[row].group != rows[row - 1].group) {
            html +=
                "<tbody><tr><th class=group scope=rowgroup lang=en colspan=" + QByteArray::number(clocks.size() + 1) +
                '>' + label(rows[row].group) + '\n';
        }
        html += tableRow(entry, row);
    }
    return html + "</table>\n";
}

QByteArray heading(const QString& name)
{
    const KnownLocale locale(name);
    const QString english = locale.englishTitle();
    const QString own = locale.nativeTitle();
    return "<h2><a href=\"#" + escaped(name) + "\">" + escaped(name) + "</a> <span lang=en>" + escaped(english) +
           "</span>" + (own == english ? QByteArray() : " <span>" + escaped(own) + "</span>") + "</h2>\n";
}

} // namespace

QByteArray GalleryPage::begin(int locales, int marked, bool isCompared)
{
    const auto changes =
        isCompared ? QStringLiteral("<label><input type=checkbox name=changed> changed only</label>\n") : QString();
    return head +
           QStringLiteral("<header><h1>Gallery of locales</h1>\n"
                          "<p>%1 locales of ICU %2 with Qt %3; %4 of them have a marked row, which gives the reason.\n"
                          "<form hidden><input type=search name=search placeholder=\"Locale or language\" "
                          "aria-label=\"Show only these\">\n"
                          "<label><input type=checkbox name=mark> marked only</label>\n%5"
                          "<output name=count></output></form></header>\n<main>\n")
               .arg(QString::number(locales), QStringLiteral(U_ICU_VERSION), QLatin1String(qVersion()),
                    QString::number(marked), changes)
               .toUtf8();
}

QByteArray GalleryPage::section(const GalleryEntry& entry, const QStringList& clocks)
{
    const bool rightToLeft = icu::Locale(entry.locale.toLatin1().constData()).isRightToLeft();
    QString language = entry.locale;
    language.replace(QLatin1Char('_'), QLatin1Char('-'));
    QByteArray html = "<section id=\"" + escaped(entry.locale) + "\" lang=\"" + escaped(language) +
                      "\" dir=" + (rightToLeft ? "rtl>\n" : "ltr>\n") + heading(entry.locale);
    if (entry.clocks.isEmpty()) {
        return html + "<p class=mark lang=en dir=ltr><span>Qt does not know this locale, so the library cannot format "
                      "for it.</span></section>\n";
    }
    int relative = 0;
    while (relative < entry.size() && !entry.clocks.first()[relative].group.startsWith(QLatin1String("relative"))) {
        ++relative;
    }
    return html + "<div class=two>\n" + table(entry, clocks, {"Patterns and percentages", "Format"}, 0, relative) +
           table(entry, clocks, {"Relative dates", "Distance"}, relative, entry.size()) + "</div></section>\n";
}

QByteArray GalleryPage::end()
{
    return tail;
}

} // namespace zel::tool
