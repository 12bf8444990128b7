#include "contentbuilder/ContentChecks.h"

#include <set>

#include "contentbuilder/SentenceChecks.h"
#include "contentbuilder/WordChecks.h"
#include "data/CurrentRecord.h"
#include "data/MarkedText.h"
#include "data/Schema.h"

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

}  // namespace

void checkWording(const std::vector<ContentTable>& tables, Problems& problems) {
  const SoundItems sound(problems);
  QHash<QString, const ContentRow*> questions;
  for (const ContentTable& table : tables) {
    const bool sentences = table.name == tableBDIC;
    for (const ContentRow& row : table.rows) {
      if (!sound.contain(row)) continue;
      const CurrentRecord record =
          ParseRecord(row.record, row.key, sentences ? tableOfSentences : QChar());
      QStringList messages = sentences ? sentenceProblems(row, record) : wordProblems(row, record);
      if (sentences) {
        const ContentRow*& first = questions[parseMarks(record.問題文).text];
        if (first)
          messages.append(QStringLiteral("「問」が文番%1（%2）と同じです。")
                              .arg(first->key, first->place.text()));
        else
          first = &row;
      }
      for (const QString& message : std::as_const(messages))
        problems.push_back({row.place.file, row.place.line, message});
    }
  }
}

}  // namespace tavoli
