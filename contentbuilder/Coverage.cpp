// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/Coverage.h"

#include <QSet>

#include <algorithm>

#include "contentbuilder/SourceText.h"
#include "data/Schema.h"
#include "data/Text.h"

namespace tavoli {

namespace {

const QString listHeader = QStringLiteral("headword");
constexpr int spellingsColumn = 2;

/// Keys as they are compared: blanks and hyphens do not count.
class KeySet {
 public:
  void insert(const QString& key) {
    m_exact.insert(typed(key));
    m_anyCase.insert(typed(key).toLower());
  }
  /// A capital is asked for, a small letter is not.
  bool holds(const QString& word) const {
    return word[0].isUpper() ? m_exact.contains(typed(word)) : m_anyCase.contains(typed(word));
  }

 private:
  static QString typed(QString text) { return text.remove(u' ').remove(u'-'); }

  QSet<QString> m_exact;
  QSet<QString> m_anyCase;
};

/// Each headword with its other spellings.
std::vector<QStringList> headwordsOf(const SourceText& source) {
  std::vector<QStringList> headwords;
  for (const SourceLine& line : source.lines) {
    const QStringList columns = line.text.split(u'\t');
    QStringList spellings = {trimBlanks(columns[0])};
    if (spellings[0].isEmpty() || spellings[0] == listHeader) continue;
    spellings += columns.value(spellingsColumn).split(fieldMark, Qt::SkipEmptyParts);
    headwords.push_back(spellings);
  }
  return headwords;
}

}  // namespace

std::optional<Coverage> coverageOf(const QByteArray& list,
                                   const std::vector<ContentTable>& tables) {
  Problems problems;
  const std::optional<SourceText> source = readSource({QString(), list}, problems);
  if (!source) return std::nullopt;
  const std::vector<QStringList> headwords = headwordsOf(*source);
  const auto count = [&](const KeySet& keys, QStringList* missing) {
    int held = 0;
    for (const QStringList& spellings : headwords) {
      const bool holds = std::any_of(spellings.begin(), spellings.end(),
                                     [&](const QString& s) { return keys.holds(s); });
      held += holds ? 1 : 0;
      if (!holds && missing) missing->append(spellings[0]);
    }
    return held;
  };

  Coverage coverage;
  coverage.headwords = static_cast<int>(headwords.size());
  KeySet stages;
  KeySet all;
  for (const ContentTable& table : tables) {
    if (table.name == tableBDIC) continue;
    KeySet own = stages;
    for (const ContentRow& row : table.rows) {
      own.insert(row.key);
      all.insert(row.key);
    }
    if (!isSpecialTable(table.name)) stages = own;
    coverage.shares.push_back({table.name, count(own, nullptr)});
  }
  count(all, &coverage.missing);
  return coverage;
}

}  // namespace tavoli
