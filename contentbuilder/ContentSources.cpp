#include "contentbuilder/ContentSources.h"

#include <algorithm>

#include "contentbuilder/SentenceSources.h"
#include "contentbuilder/SourceText.h"
#include "contentbuilder/WordSources.h"
#include "data/Schema.h"

namespace tavoli {

namespace {

const QString wordsStart = QStringLiteral("words-");
const QString wordsEnd = QStringLiteral(".tsv");

/// What lies in the content folder beside the sources.
const QStringList companions = {QStringLiteral("README.md"), QStringLiteral("CMakeLists.txt")};

/// The dictionary that a file becomes; empty when it is no words file.
QString dictionaryOf(const QString& file) {
  if (!file.startsWith(wordsStart) || !file.endsWith(wordsEnd)) return {};
  const QString table = file.sliced(wordsStart.size()).chopped(wordsEnd.size());
  const bool theStoresOwn = table.startsWith(QStringLiteral("sqlite_"), Qt::CaseInsensitive);
  const bool dictionary = table == tableJTDIC || table == tableSTDIC || isSpecialTable(table);
  return dictionary && !theStoresOwn ? table : QString();
}

const SentenceCourse* courseOf(const QString& file) {
  const auto course = std::find_if(sentenceCourses.begin(), sentenceCourses.end(),
                                   [&](auto& c) { return sentencesFileName(c.name) == file; });
  return course == sentenceCourses.end() ? nullptr : &*course;
}

class ContentReader {
 public:
  explicit ContentReader(Problems& problems) : m_problems(problems) {}

  void read(const SourceFile& file) {
    if (companions.contains(file.name)) return;
    const SentenceCourse* course = courseOf(file.name);
    const QString dictionary = dictionaryOf(file.name);
    if (!course && dictionary.isEmpty()) {
      complain(file, QStringLiteral("何のファイルか分かりません。名前を words-表名.tsv か "
                                    "sentences-中学.txt などに直すか、ほかへ移してください。"));
      return;
    }
    const std::optional<SourceText> source = readSource(file, m_problems);
    if (!source) return;
    if (course) {
      std::vector<ContentRow>& rows = m_tables.front().rows;
      const std::vector<ContentRow> more = parseSentences(*source, *course, m_places, m_problems);
      rows.insert(rows.end(), more.begin(), more.end());
      return;
    }
    ContentTable* table = tableFor(dictionary);
    if (table->name == dictionary)
      table->rows = parseWords(*source, m_problems);
    else
      complain(file, QStringLiteral("表%1とは大文字と小文字が違うだけです。表名を変えてください。")
                         .arg(table->name));
  }

  std::vector<ContentTable> takeTables() { return std::move(m_tables); }

 private:
  void complain(const SourceFile& file, const QString& message) {
    m_problems.push_back({file.name, 1, message});
  }

  /// The store takes names that differ only in case for the same table.
  ContentTable* tableFor(const QString& name) {
    for (ContentTable& table : m_tables)
      if (table.name.compare(name, Qt::CaseInsensitive) == 0) return &table;
    m_tables.push_back({name, {}});
    return &m_tables.back();
  }

  Problems& m_problems;
  std::vector<ContentTable> m_tables = {{tableBDIC, {}}, {tableJTDIC, {}}, {tableSTDIC, {}}};
  SentencePlaces m_places;
};

}  // namespace

QString wordsFileName(const QString& table) {
  return wordsStart + table + wordsEnd;
}

QString sentencesFileName(const QString& course) {
  return QStringLiteral("sentences-%1.txt").arg(course);
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
