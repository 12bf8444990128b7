#include "practice/RunReport.h"

#include "data/Text.h"
#include "practice/QuestionText.h"

namespace tavoli {

namespace {

enum Level : size_t { 中学 = 0, 高校 = 1, 専門 = 2 };

/// The level of a dictionary by its place in the course's look-up order.
size_t wordLevel(QChar COURSE, QChar itemTable) {
  constexpr std::array<std::array<size_t, 3>, 3> levels = {
      {{中学, 高校, 専門}, {高校, 中学, 専門}, {専門, 高校, 中学}}};
  const auto course = static_cast<size_t>(std::clamp(COURSE.unicode() - u'0', 0, 2));
  const auto place = static_cast<size_t>(std::clamp(itemTable.unicode() - u'1', 0, 2));
  return levels[course][place];
}

size_t sentenceLevel(const QString& 文番) {
  if (文番 < QStringLiteral("5")) return 中学;
  return 文番 < QStringLiteral("9") ? 高校 : 専門;
}

}  // namespace

void RunReport::finish(const RunState& state) {
  ++m_finished;
  const PracticeItem& item = state.set.item(state.POS);
  const CurrentRecord& record = state.record;
  if (record.sentence) {
    const size_t level = sentenceLevel(item.itemEnglish);
    ++m_counts.sentences[level];
    ++m_counts.month.sentences[level];
  } else {
    const size_t level = wordLevel(state.course.COURSE, item.itemTable);
    ++m_counts.words[level];
    ++m_counts.month.words[level];
  }

  QStringList lines = {
      QStringLiteral("-------------- %1 -------------").arg(digits(m_finished, 4))};
  if (record.sentence) {
    lines.append(record.問題文);
    lines += sentenceAnswerLines(record);
  } else {
    lines.append(record.英語 + BuildPronunciationText(record.発音, QString()));
    lines += wordAnswerLines(record);
  }
  for (const QString& line : std::as_const(lines)) m_runLog += parseMarks(line).text.split(u'\n');
}

}  // namespace tavoli
