// SPDX-License-Identifier: GPL-3.0-or-later

#include "home/LineTexts.h"

#include <QHash>

namespace tavoli {

namespace {

/// How many of its first lines a text has lost in another that goes on from it; nothing where the
/// other does not. Lines are lost only where the other is full.
std::optional<qsizetype> linesLostIn(const QStringList& longer, const QStringList& text,
                                     qsizetype most) {
  for (qsizetype lost = 0; lost == 0 || (lost < text.size() && longer.size() >= most); ++lost)
    if (longer.first(std::min(longer.size(), text.size() - lost)) == text.sliced(lost)) return lost;
  return std::nullopt;
}

}  // namespace

QStringList joinedLines(const QStringList& first, const QStringList& second, qsizetype most) {
  const std::optional<qsizetype> inFirst = linesLostIn(first, second, most);
  const std::optional<qsizetype> inSecond = linesLostIn(second, first, most);
  if (inFirst && inFirst <= inSecond.value_or(*inFirst)) return first;
  if (inSecond) return second;
  QHash<QString, int> known;
  for (const QString& line : first) ++known[line];
  QStringList joined = first;
  for (const QString& line : second)
    if (--known[line] < 0) joined.append(line);
  return joined.sliced(std::max<qsizetype>(0, joined.size() - most));
}

}  // namespace tavoli
