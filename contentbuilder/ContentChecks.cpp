// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/ContentChecks.h"

#include <set>

#include "contentbuilder/SentenceChecks.h"
#include "contentbuilder/SentenceWarnings.h"
#include "contentbuilder/WordChecks.h"
#include "contentbuilder/WordWarnings.h"
#include "data/CurrentRecord.h"
#include "data/Schema.h"
#include "itemtext/MarkedText.h"

namespace tavoli {

namespace {

/// The items of which no line has a problem.
class SoundItems {
 public:
  explicit SoundItems(const Problems& problems) {
    for (const Problem& problem : problems) m_lines.insert({problem.file, problem.line});
  }
  bool contain(const ContentRow& row) const {
    const auto found = m_lines.lower_bound({row.place.file, row.place.line});
    return found == m_lines.end() || found->first != row.place.file || found->second > row.lastLine;
  }

 private:
  std::set<std::pair<QString, int>> m_lines;
};

class WordingCheck {
 public:
  WordingCheck(Problems& problems, Warnings& warnings)
      : m_problems(problems), m_warnings(warnings) {}

  void checkSentence(const ContentRow& row) {
    const CurrentRecord record = ParseRecord(row.record, row.key, TableCode::sentences);
    complain(row, sentenceProblems(row, record));
    const ContentRow*& first = m_questions[parseMarks(record.問題文).text];
    if (first)
      complain(row, {QStringLiteral("「問」が文番%1（%2）と同じです。")
                         .arg(first->key, first->place.text())});
    else
      first = &row;
    warn(sentenceWarnings(row, record));
  }

  void checkWord(const QString& table, const ContentRow& row) {
    const CurrentRecord record = ParseRecord(row.record, row.key, TableCode::first);
    complain(row, wordProblems(row, record));
    warn(wordWarnings(table, row, record));
    QStringList meanings;
    for (const SubQuestion& s : record.小問) meanings.append(s.日本語);
    m_words.push_back({table, &row, record.同, meanings});
  }

  void checkBetweenWords() { warn(sharedMeanings(m_words)); }

 private:
  void complain(const ContentRow& row, const QStringList& messages) {
    for (const QString& message : messages)
      m_problems.push_back({row.place.file, row.place.line, message});
  }
  void warn(const Warnings& more) { m_warnings.insert(m_warnings.end(), more.begin(), more.end()); }

  Problems& m_problems;
  Warnings& m_warnings;
  QHash<QString, const ContentRow*> m_questions;
  std::vector<KnownWord> m_words;
};

}  // namespace

void checkWording(const std::vector<ContentTable>& tables, Problems& problems, Warnings& warnings) {
  const SoundItems sound(problems);
  WordingCheck check(problems, warnings);
  for (const ContentTable& table : tables) {
    for (const ContentRow& row : table.rows) {
      if (!sound.contain(row)) continue;
      if (table.name == tableBDIC)
        check.checkSentence(row);
      else
        check.checkWord(table.name, row);
    }
  }
  check.checkBetweenWords();
}

}  // namespace tavoli
