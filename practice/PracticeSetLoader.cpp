// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/PracticeSetLoader.h"

#include <algorithm>

#include "data/LessonFile.h"
#include "data/Schema.h"
#include "data/Text.h"
#include "system/Dialogs.h"
#include "system/Files.h"
#include "system/LoadProgress.h"
#include "system/Random.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

/// A load of more lines or rows than that is shown as a long one.
constexpr int progressFrom = 1000;
constexpr int pumpEvery = 500;

/// What a row of any table gives to its item.
PracticeItem itemOf(const TableCursor& row, const QString& recordField) {
  PracticeItem item;
  item.itemEnglish = row.key();
  const QString memory = row.text(field記憶);
  item.itemMemory = codeOf<MemoryState>(memory);
  item.itemTimes = numberOf(row.text(field回数));
  item.itemRecord = row.text(recordField);
  item.damaged = row.isDamaged(recordField);
  item.itemReading = row.text(field読上);
  return item;
}

bool isDigit(QChar c) {
  return c >= u'0' && c <= u'9';
}

/// A sentence's entry, or its number alone.
bool namesSentence(const QString& startKey) {
  return isSentenceEntry(startKey) ||
         (startKey.size() == 6 && std::all_of(startKey.begin(), startKey.end(), isDigit));
}

}  // namespace

int lessonStartLine(const QStringList& lines, const QString& startKey) {
  const auto bySentence = [&](const QString& line) {
    return cut(line, 1, 6) == cut(startKey, 1, 6);
  };
  const auto byWord = [&](const QString& line) { return trimBlanks(line) == startKey; };
  auto found = lines.end();
  if (!isSentenceEntry(startKey)) found = std::find_if(lines.begin(), lines.end(), byWord);
  if (found == lines.end() && namesSentence(startKey))
    found = std::find_if(lines.begin(), lines.end(), bySentence);
  if (found == lines.end() || std::next(found) == lines.end()) return 1;
  return static_cast<int>(std::distance(lines.begin(), found)) + 1;
}

PracticeSetLoader::PracticeSetLoader(LearningTables& tables, const CourseChoice& course,
                                     const PracticeConditions& conditions, const Files& files,
                                     Random& random, Dialogs& dialogs, LoadProgress& progress)
    : m_tables(tables),
      m_course(course),
      m_conditions(conditions),
      m_files(files),
      m_random(random),
      m_dialogs(dialogs),
      m_progress(progress) {}

PracticeSet PracticeSetLoader::LoadPracticeSet(const QString& startKey) {
  m_set = PracticeSet();
  m_named.clear();
  if (m_conditions.usesLesson())
    loadLesson(startKey);
  else if (m_conditions.usesWords())
    LoadWords(startKey);
  else
    LoadSentences(startKey);
  if (m_conditions.isRandom()) {
    m_random.reseed();
    m_set.ShufflePracticeSet(m_random);
  }
  return std::move(m_set);
}

void PracticeSetLoader::loadLesson(const QString& startKey) {
  QStringList lines = readLessonLines(m_files, m_conditions.lessonPath()).value_or(QStringList());
  lines.removeIf(isPracticeComment);
  if (lines.size() > maxLessonLines) lines.resize(maxLessonLines);

  const int startLine = lessonStartLine(lines, startKey);
  beginProgress(static_cast<int>(lines.size()));
  for (int n = 1; n <= lines.size() && m_set.itemCount() < maxItems && goesOn(n); ++n) {
    const QString& line = lines[n - 1];
    if (isSentenceEntry(line)) {
      m_tables.rsBDIC().Seek(SeekOp::Equal, cut(line, 1, 6));
      if (!m_tables.rsBDIC().NoMatch()) appendNamed(TableCode::sentences, m_tables.rsBDIC().key());
    } else {
      appendLessonWord(trimBlanks(line));
    }
    if (n == startLine) m_set.startIndex = std::max(1, m_set.itemCount());
  }
  endProgress();
}

void PracticeSetLoader::appendLessonWord(const QString& line) {
  for (int place = 1; place <= m_tables.places(); ++place) {
    TableCursor& rows = m_tables.rsTDIC(place);
    for (rows.Seek(SeekOp::Equal, line);
         rows.hasRow() && rows.key().compare(line, Qt::CaseInsensitive) == 0; rows.MoveNext()) {
      if (rows.key() != line) continue;
      appendNamed(tableAt(place), line);
      return;
    }
  }
}

void PracticeSetLoader::appendNamed(TableCode itemTable, const QString& key) {
  const std::pair row(itemTable, key);
  if (const auto named = m_named.constFind(row); named != m_named.constEnd()) {
    m_set.appendCopy(*named);
    return;
  }
  const bool kept =
      itemTable == TableCode::sentences ? appendSentence() : appendWord(placeOf(itemTable));
  if (kept) m_named.insert(row, m_set.itemCount());
}

void PracticeSetLoader::LoadWords(const QString& startKey) {
  TableCursor& rows = m_tables.rsTDIC(1);
  // Words that begin with a symbol stand before any digit: the first item is the first row.
  if (startKey == startKeyFirst)
    rows.MoveFirst();
  else
    rows.Seek(SeekOp::AtOrAfter, startKey);
  const int wanted = std::min(m_conditions.maxLoadWords, maxItems);
  beginProgress(wanted);
  for (int n = 1; n <= wanted && rows.hasRow() && !isReservedKey(rows.key()) && goesOn(n); ++n) {
    appendWord(1);
    rows.MoveNext();
  }
  endProgress();
  m_dialogs.show(
      u"最大読込数 %1 のうち %2が練習条件を満足しました。"_s.arg(m_conditions.maxLoadWords)
          .arg(m_set.itemCount()));
}

void PracticeSetLoader::LoadSentences(const QString& startKey) {
  TableCursor& rows = m_tables.rsBDIC();
  QString from = cut(startKey, 1, 6);
  if (startKey == startKeyFirst || !isDigit(from.isEmpty() ? QChar() : from[0]))
    from = factsOf(m_course.COURSE).firstSentence;
  const QString end = factsOf(m_course.COURSE).sentencesEnd;
  rows.Seek(SeekOp::AtOrAfter, from);
  const int wanted = std::min(m_conditions.maxLoadSent, maxItems);
  beginProgress(wanted);
  for (int n = 1; n <= wanted && rows.hasRow() && rows.key() < end && goesOn(n); ++n) {
    appendSentence();
    rows.MoveNext();
  }
  endProgress();
}

void PracticeSetLoader::beginProgress(int loadTotal) {
  m_progressShown = loadTotal > progressFrom;
  if (m_progressShown) m_progress.begin(loadTotal);
}

void PracticeSetLoader::endProgress() {
  if (m_progressShown) m_progress.end();
}

bool PracticeSetLoader::goesOn(int number) {
  return !m_progressShown || number % pumpEvery != 1 || m_progress.reached(number);
}

bool PracticeSetLoader::appendSentence() {
  PracticeItem item = itemOf(m_tables.rsBDIC(), field問正コ);
  item.itemTable = TableCode::sentences;
  item.itemLevel = u'0' + item.itemEnglish.left(1);
  return appendIfKept(std::move(item));
}

bool PracticeSetLoader::appendWord(int place) {
  const TableCursor& row = m_tables.rsTDIC(place);
  PracticeItem item = itemOf(row, field発同日コ);
  item.itemTable = tableAt(place);
  item.itemLevel = digits(numberOf(row.text(fieldレベル)), 2);
  return appendIfKept(std::move(item));
}

bool PracticeSetLoader::appendIfKept(PracticeItem item) {
  const bool kept = KeepIfConditionsMet(item);
  if (kept) m_set.append(std::move(item));
  return kept;
}

bool PracticeSetLoader::KeepIfConditionsMet(const PracticeItem& item) const {
  return !isReservedKey(item.itemEnglish) && m_conditions.levelFrom <= item.itemLevel &&
         item.itemLevel <= m_conditions.levelTo &&
         memoryAdmitted(m_conditions.memorySelect, item.itemMemory);
}

}  // namespace tavoli
