// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/LessonChecks.h"

#include <QSet>

#include "data/Schema.h"
#include "data/Text.h"
#include "data/TextFile.h"

namespace tavoli {

namespace {

const QString lessonEnd = QStringLiteral(".tav");

class LessonCheck {
 public:
  explicit LessonCheck(const std::vector<ContentTable>& tables) {
    for (const ContentTable& table : tables)
      for (const ContentRow& row : table.rows)
        (table.name == tableBDIC ? m_sentences : m_words).insert(row.key);
  }

  /// Why the line is no entry of a lesson; empty when it is one, or a comment.
  QString problem(const QString& line) const {
    if (trimBlanks(line).isEmpty()) return QStringLiteral("空行があります。除いてください。");
    if (line.startsWith(u'*') || line.startsWith(u'!')) return {};
    if (isSentenceEntry(line)) {
      const QString 文番 = trimBlanks(cut(line, 1, 6));
      return m_sentences.contains(文番) ? QString()
                                        : QStringLiteral("文番%1の例文はありません。").arg(文番);
    }
    return m_words.contains(line) ? QString()
                                  : QStringLiteral("「%1」はどの表にもありません。").arg(line);
  }

 private:
  QSet<QString> m_words;
  QSet<QString> m_sentences;
};

}  // namespace

void checkLessons(const std::vector<SourceFile>& lessons, const std::vector<ContentTable>& tables,
                  Problems& problems) {
  const LessonCheck check(tables);
  for (const SourceFile& lesson : lessons) {
    const std::optional<QString> text = decodeText(lesson.bytes);
    if (!lesson.name.endsWith(lessonEnd) || !text) {
      problems.push_back({lesson.name, 0,
                          QStringLiteral("レッスンファイルではありません。名前が .tav で終わる、"
                                         "UTF-8かシフトJISのファイルにしてください。")});
      continue;
    }
    int number = 0;
    for (const QString& line : splitLines(storedSpelling(*text))) {
      ++number;
      if (const QString problem = check.problem(line); !problem.isEmpty())
        problems.push_back({lesson.name, number, problem});
    }
  }
}

}  // namespace tavoli
