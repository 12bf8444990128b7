// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/RunReport.h"

#include "data/Text.h"
#include "itemtext/QuestionText.h"

using namespace Qt::StringLiterals;

namespace tavoli {

void RunReport::finish(const RunState& state) {
  ++m_今回の練習回数;
  const PracticeItem& item = state.shown.item();
  const CurrentRecord& record = state.shown.record();
  m_progress.countQuestion(state.course.COURSE, item.itemTable, item.itemEnglish);

  QStringList lines = {u"-------------- %1 -------------"_s.arg(digits(m_今回の練習回数, 4))};
  if (record.sentence) {
    lines.append(record.問題文);
    lines += sentenceAnswerLines(record);
  } else {
    lines.append(record.英語 + BuildPronunciationText(record.発音, QString()));
    lines += wordAnswerLines(record);
  }
  for (const QString& line : std::as_const(lines)) m_runLog += parseMarks(line).text.split(u'\n');
}

RunCounts RunReport::counts() const {
  RunCounts counts;
  for (size_t level = 0; level < levelCount; ++level) {
    counts.month.words[level] = m_progress.回数単熟[level][0];
    counts.month.sentences[level] = m_progress.回数文[level][0];
    counts.run.words[level] = counts.month.words[level] - m_before.回数単熟[level][0];
    counts.run.sentences[level] = counts.month.sentences[level] - m_before.回数文[level][0];
  }
  return counts;
}

}  // namespace tavoli
