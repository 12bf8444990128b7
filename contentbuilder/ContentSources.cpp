// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/ContentSources.h"

#include <QSet>

#include <algorithm>
#include <limits>

#include "contentbuilder/SentenceSources.h"
#include "contentbuilder/SourceText.h"
#include "contentbuilder/WordSources.h"
#include "data/Schema.h"

namespace tavoli {

namespace {

const QString wordsFolder = QStringLiteral("words");
const QString wordsEnd = QStringLiteral(".tsv");
const QString sentencesFolder = QStringLiteral("sentences");
const QString sentencesEnd = QStringLiteral(".txt");

/// What lies in the content folder beside the sources.
const QStringList companions = {QStringLiteral("README.md"), QStringLiteral("CMakeLists.txt")};

/// The folder inside `kind` that a source of that kind lies in; empty when it is none.
QString groupOf(const QString& file, const QString& kind, const QString& ending) {
  const QStringList steps = file.split(u'/');
  return steps.size() == 3 && steps[0] == kind && file.endsWith(ending) ? steps[1] : QString();
}

const CourseFacts* courseOf(const QString& file) {
  const QString name = groupOf(file, sentencesFolder, sentencesEnd);
  const auto course =
      std::find_if(courses().begin(), courses().end(), [&](auto& c) { return c.name == name; });
  return course == courses().end() ? nullptr : &*course;
}

bool startsLike(const QString& table, const QString& start) {
  return table.startsWith(start, Qt::CaseInsensitive);
}

/// Why a dictionary cannot have that name; empty when it can.
QString tableNameProblem(const QString& table) {
  if (table == tableJTDIC || table == tableSTDIC) return {};
  for (const QString& own : {tableJTDIC, tableSTDIC}) {
    if (startsLike(table, own))
      return QStringLiteral(
                 "表%1の名前が%2と紛らわしいので使えません。%2の語なら words/%2/ に、"
                 "専門の辞書なら別の表名にしてください。")
          .arg(table, own);
  }
  if (startsLike(table, QStringLiteral("sqlite_")) || !isSpecialTable(table) ||
      table.compare(tableBDIC, Qt::CaseInsensitive) == 0 || table.startsWith(u'.'))
    return QStringLiteral("表名%1は使えません。別の名前にしてください。").arg(table);
  return {};
}

class ContentReader {
 public:
  explicit ContentReader(Problems& problems) : m_problems(problems) {}

  void read(const SourceFile& file) {
    if (companions.contains(file.name)) return;
    if (const CourseFacts* course = courseOf(file.name)) {
      if (const std::optional<SourceText> source = readSource(file, m_problems))
        append(m_tables.front(), *source,
               parseSentences(*source, *course, m_places[0], m_problems));
      return;
    }
    const QString table = groupOf(file.name, wordsFolder, wordsEnd);
    if (table.isEmpty())
      complain(file,
               QStringLiteral("何のファイルか分かりません。words/表名/ の .tsv か "
                              "sentences/中学/ などの .txt にするか、ほかへ移してください。"));
    else if (const QString problem = tableNameProblem(table); !problem.isEmpty())
      complain(file, problem);
    else
      readWords(file, table);
  }

  std::vector<ContentTable> takeTables() {
    for (const QString& table : {tableJTDIC, tableSTDIC}) {
      if (!m_read.contains(table)) {
        m_problems.push_back({QStringLiteral("%1/%2").arg(wordsFolder, table), 0,
                              QStringLiteral("表%1のファイル（.tsv）がありません。").arg(table)});
      }
    }
    return std::move(m_tables);
  }

 private:
  void complain(const SourceFile& file, const QString& message) {
    m_problems.push_back({file.name, 1, message});
  }

  static void append(ContentTable& table, const SourceText& source,
                     const std::vector<ContentRow>& rows) {
    table.rows.insert(table.rows.end(), rows.begin(), rows.end());
    SourceLayout layout{source.name, {}};
    auto heading = source.headings.begin();
    const auto takeHeadings = [&](int before) {
      for (; heading != source.headings.end() && heading->number < before; ++heading)
        layout.lines.append(heading->text);
    };
    for (const ContentRow& row : rows) {
      takeHeadings(row.lastLine);
      layout.lines.append(row.key);
    }
    takeHeadings(std::numeric_limits<int>::max());
    table.layouts.push_back(std::move(layout));
  }

  void readWords(const SourceFile& file, const QString& name) {
    m_read.insert(name);
    const std::optional<SourceText> source = readSource(file, m_problems);
    if (!source) return;
    const size_t t = tableFor(name);
    if (m_tables[t].name == name)
      append(m_tables[t], *source, parseWords(*source, m_places[t], m_problems));
    else
      complain(file, QStringLiteral("表%1とは大文字と小文字が違うだけです。表名を変えてください。")
                         .arg(m_tables[t].name));
  }

  /// The store takes names that differ only in case for the same table.
  size_t tableFor(const QString& name) {
    const auto found =
        std::find_if(m_tables.begin(), m_tables.end(), [&](const ContentTable& table) {
          return table.name.compare(name, Qt::CaseInsensitive) == 0;
        });
    if (found != m_tables.end()) return static_cast<size_t>(found - m_tables.begin());
    m_tables.push_back({name, {}});
    m_places.emplace_back();
    return m_tables.size() - 1;
  }

  Problems& m_problems;
  std::vector<ContentTable> m_tables = {{tableBDIC, {}}, {tableJTDIC, {}}, {tableSTDIC, {}}};
  std::vector<KeyPlaces> m_places{m_tables.size()};  ///< those of each table
  QSet<QString> m_read;                              ///< dictionaries that have a file
};

}  // namespace

QString wordsFileName(const QString& table) {
  return QStringLiteral("%1/%2/%2%3").arg(wordsFolder, table, wordsEnd);
}

QString sentencesFileName(const QString& course) {
  return QStringLiteral("%1/%2/%2%3").arg(sentencesFolder, course, sentencesEnd);
}

QString tableOfSource(const QString& file) {
  if (courseOf(file)) return tableBDIC;
  const QString table = groupOf(file, wordsFolder, wordsEnd);
  return tableNameProblem(table).isEmpty() ? table : QString();
}

std::vector<ContentTable> readContent(const std::vector<SourceFile>& files, Problems& problems) {
  ContentReader reader(problems);
  for (const SourceFile& file : files) {
    const auto first = static_cast<Problems::difference_type>(problems.size());
    reader.read(file);
    std::stable_sort(problems.begin() + first, problems.end(),
                     [](const Problem& a, const Problem& b) { return a.line < b.line; });
  }
  return reader.takeTables();
}

}  // namespace tavoli
