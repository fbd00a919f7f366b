#include "gallery/GalleryPage.h"

#include "texts/LocaleTitle.h"
#include <algorithm>
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
:root{color-scheme:light dark;--paper:#f6f7f9;--card:#fff;--ink:#1b1f24;--faint:#667080;--line:#e3e6eb;--accent:#0b6bcb;
--mark:#fff4d6;--edge:#d99a00}
@media(prefers-color-scheme:dark){:root{--paper:#15181c;--card:#1d2126;--ink:#e6e9ee;--faint:#97a1af;--line:#2d333b;
--accent:#6cb2ff;--mark:#3a3015;--edge:#e0a62a}}
*{box-sizing:border-box}
body{margin:0;background:var(--paper);color:var(--ink);font:15px/1.45 system-ui,"Noto Sans",sans-serif}
header{position:sticky;top:0;z-index:1;display:flex;flex-wrap:wrap;gap:.3rem 1.2rem;align-items:center;padding:.7rem 1.2rem;
background:var(--card);border-bottom:1px solid var(--line)}
h1{margin:0;font-size:1.15rem}
header p{margin:0;flex:1;min-width:16rem;color:var(--faint)}
input[type=search]{font:inherit;width:15rem;max-width:100%;padding:.3rem .6rem;border:1px solid var(--line);
border-radius:.4rem;background:var(--paper);color:inherit}
main{max-width:84rem;margin:auto;padding:1rem}
section{margin-bottom:1rem;padding:1rem 1.2rem;background:var(--card);border:1px solid var(--line);border-radius:.6rem;
content-visibility:auto;contain-intrinsic-size:auto 48rem;scroll-margin-top:5rem}
h2{margin:0 0 .6rem;font-size:1.1rem;display:flex;flex-wrap:wrap;gap:0 .8rem;align-items:baseline}
h2 a{color:var(--accent);text-decoration:none}
h2 span{font-weight:400;color:var(--faint)}
.two{display:grid;grid-template-columns:repeat(auto-fit,minmax(min(30rem,100%),1fr));gap:1rem 2rem;align-items:start}
table{width:100%;border-collapse:collapse}
th,td{padding:.22rem .4rem;text-align:start;vertical-align:baseline;border-top:1px solid var(--line);overflow-wrap:anywhere}
thead th{border:0;font-weight:600;color:var(--faint)}
tbody th{width:9.5rem;font-weight:400;color:var(--faint);font-size:.87rem}
tbody th.group{padding-top:.7rem;border:0;font-weight:600;font-size:.75rem;letter-spacing:.04em;text-transform:uppercase}
code{display:block;width:fit-content;direction:ltr;unicode-bidi:isolate;color:var(--faint);
font:.8rem/1.3 ui-monospace,"Noto Sans Mono",monospace}
.mark>*{background:var(--mark)}
.mark th{border-inline-start:3px solid var(--edge)}
em{display:block;font-size:.8rem;direction:ltr;color:var(--faint)}
[hidden]{display:none!important}
@media print{header{position:static}form{display:none}section{content-visibility:visible}}
</style>
</head>
<body>
)";

// The filter shows the locales of which a word of the title begins with what was typed.
constexpr const char* tail = R"(</main>
<script>
(function () {
  var form = document.querySelector('form'), search = form.elements.search, marked = form.elements.marked;
  var sections = Array.prototype.map.call(document.querySelectorAll('section'), function (section) {
    return { node: section, marked: !!section.querySelector('.mark'),
             words: ' ' + section.querySelector('h2').textContent.toLowerCase().replace(/[(),\s]+/g, ' ') };
  });
  function apply() {
    var wanted = search.value.trim().toLowerCase().replace(/-/g, '_'), shown = 0;
    sections.forEach(function (section) {
      var hidden = section.words.indexOf(' ' + wanted) < 0 || marked.checked && !section.marked;
      section.node.hidden = hidden;
      shown += hidden ? 0 : 1;
    });
    form.elements.count.value = shown + ' shown';
  }
  function follow() {
    var match = /^#filter=(.*)$/.exec(location.hash);
    if (match) {
      search.value = decodeURIComponent(match[1]);
    }
    apply();
  }
  form.hidden = false;
  form.addEventListener('input', apply);
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

// English, in a section that may run from right to left.
QByteArray label(const QString& text)
{
    return "<bdi>" + escaped(text) + "</bdi>";
}

QByteArray cell(const GalleryRow& row, int columns)
{
    QByteArray html = columns > 1 ? "<td colspan=" + QByteArray::number(columns) + '>' : QByteArray("<td>");
    html += escaped(row.text);
    if (!row.pattern.isEmpty() && row.pattern != row.name) {
        html += "<code lang=en>" + escaped(row.pattern) + "</code>";
    }
    for (const QString& note : row.notes) {
        html += "<em lang=en>" + escaped(note) + "</em>";
    }
    return html;
}

QByteArray tableRow(const GalleryEntry& entry, int row)
{
    const QList<int> distinct = entry.distinctClocks(row);
    const bool marked =
        std::any_of(distinct.begin(), distinct.end(), [&](int c) { return !entry.clocks[c][row].notes.isEmpty(); });
    const GalleryRow& first = entry.clocks.first()[row];
    QByteArray html = marked ? "<tr class=mark>" : "<tr>";
    html += "<th scope=row lang=en>" + label(first.name);
    const int columns = distinct.size() == 1 ? static_cast<int>(entry.clocks.size()) : 1;
    for (const int clock : distinct) {
        html += cell(entry.clocks[clock][row], columns);
    }
    return html + '\n';
}

// The rows from one to another, a body a group.
QByteArray table(const GalleryEntry& entry, const QStringList& clocks, int from, int to)
{
    const QList<GalleryRow>& rows = entry.clocks.first();
    QByteArray html = "<table><thead lang=en><tr><th>";
    for (const QString& clock : clocks) {
        html += "<th>" + label(clock);
    }
    for (int row = from; row < to; ++row) {
        if (row == from || rows[row].group != rows[row - 1].group) {
            html += "<tbody><tr><th class=group lang=en colspan=" + QByteArray::number(clocks.size() + 1) + '>' +
                    label(rows[row].group) + '\n';
        }
        html += tableRow(entry, row);
    }
    return html + "</table>\n";
}

QByteArray heading(const QString& name)
{
    const icu::Locale locale(name.toLatin1().constData());
    icu::UnicodeString own;
    locale.getDisplayName(locale, own);
    const QString ownName(reinterpret_cast<const QChar*>(own.getBuffer()), own.length());
    const QString english = localeTitle(name);
    return "<h2><a href=\"#" + escaped(name) + "\">" + escaped(name) + "</a> <span lang=en>" + escaped(english) +
           "</span>" + (ownName == english ? QByteArray() : " <span>" + escaped(ownName) + "</span>") + "</h2>\n";
}

} // namespace

QByteArray GalleryPage::begin(int locales, int marked)
{
    return head + QStringLiteral("<header><h1>Gallery of locales</h1>\n"
                                 "<p>%1 locales of ICU %2 with Qt %3; on %4 of them a row is marked, with the reason.\n"
                                 "<form hidden><input type=search name=search placeholder=\"Locale or language\" "
                                 "aria-label=\"Show only these\">\n"
                                 "<label><input type=checkbox name=marked> marked only</label>\n"
                                 "<output name=count></output></form></header>\n<main>\n")
                      .arg(QString::number(locales), QStringLiteral(U_ICU_VERSION), QLatin1String(qVersion()),
                           QString::number(marked))
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
        return html + "<p class=mark lang=en dir=ltr><span>Qt does not know this locale, so that the library cannot be "
                      "asked for it.</span></section>\n";
    }
    int relative = 0;
    while (relative < entry.size() && !entry.clocks.first()[relative].group.startsWith(QLatin1String("relative"))) {
        ++relative;
    }
    return html + "<div class=two>\n" + table(entry, clocks, 0, relative) +
           table(entry, clocks, relative, entry.size()) + "</div></section>\n";
}

QByteArray GalleryPage::end()
{
    return tail;
}

} // namespace zel::tool
