// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/Comments.h"

#include <algorithm>

#include "data/Text.h"
#include "itemtext/MarkedText.h"

namespace tavoli {

namespace {

const QString kindFragment = QStringLiteral("断片の読上");
const QString twoBlanks = QStringLiteral("  ");
constexpr int shortestSpoken = 5;

bool isEnglish(QChar c) {
  return c <= u'z' || c == u'＝' || c == u'～';
}

/// Whether the voice takes up a line that begins so.
bool beginsSpoken(QChar c) {
  return (c >= u'=' && c <= u'z') || c == u'(' || c == u'＝' || c == u'"';
}

}  // namespace

QStringList commentLines(const QString& comment) {
  QStringList lines = parseMarks(comment).text.split(u'\n');
  lines.removeAll(QString());
  return lines;
}

std::optional<Example> exampleIn(const QString& line) {
  const auto seam = line.indexOf(twoBlanks);
  if (seam <= 0) return std::nullopt;
  Example example{line.first(seam), line.sliced(seam + twoBlanks.size())};
  const auto all = [](const QString& text) {
    return std::all_of(text.begin(), text.end(), isEnglish);
  };
  if (!all(example.english) || all(example.japanese) || example.japanese.startsWith(u' ') ||
      example.japanese.contains(twoBlanks))
    return std::nullopt;
  return example;
}

QStringList spokenFragments(const QString& comment) {
  QStringList fragments;
  for (const QString& line : parseMarks(comment).text.split(u'\n')) {
    if (line.isEmpty()) break;
    if (!beginsSpoken(line[0])) continue;
    const auto japanese = std::find_if_not(line.begin(), line.end(), isEnglish);
    QString spoken = line.first(japanese - line.begin());
    if (japanese == line.end() || spoken.endsWith(twoBlanks)) continue;
    if (spoken.endsWith(u'～')) spoken.chop(1);
    spoken = trimBlanks(spoken);
    const bool silent =
        spoken.size() < shortestSpoken || spoken.contains(u'/') || !spoken.contains(u' ');
    const bool sentence = !spoken.isEmpty() && QStringLiteral(".?!").contains(spoken.back());
    if (!silent && !sentence) fragments.append(spoken);
  }
  return fragments;
}

Warning fragmentWarning(const ContentRow& row, const QString& name, const QString& fragment) {
  return {{row.place.file, row.place.line,
           QStringLiteral("コメントの「%1」だけが読み上げられます。「 か日本語で始めてください。")
               .arg(fragment)},
          kindFragment,
          name};
}

}  // namespace tavoli
