// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/QuestionSheet.h"

#include "itemtext/QuestionText.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

// Twips on A4.
constexpr double margin = 850.5;
constexpr double textHeight = 15138.9;
constexpr double lineSpacing = 1.3;
constexpr PageFont font{PageFont::Face::Gothic, 10.5};
constexpr LineLayout layout{margin, margin, margin, textHeight, lineSpacing, font};

/// "りんご　3回　うろ覚え"
QString meaningLine(const SubQuestion& s) {
  const QChar blank(u'　');
  return s.日本語 + blank + u"%1回"_s.arg(s.小問回数) + blank + memoryName(s.記);
}

}  // namespace

QuestionSheet::QuestionSheet(const std::vector<PracticeItem>& items, const QString& userId,
                             const QDateTime& printedAt)
    : m_head(u" UID= "_s + userId + printedAt.toString(u" yyyy/MM/dd  HH:mm:ss"_s)) {
  for (const PracticeItem& item : items)
    m_questions.push_back(
        questionOf(ParseRecord(item.itemRecord, item.itemEnglish, item.itemTable)));
}

void QuestionSheet::add(Question& question, const QString& label, const QString& text) {
  question.push_back({label, parseMarks(text)});
  m_unpaired = m_unpaired || question.back().text.unpaired;
}

QuestionSheet::Question QuestionSheet::questionOf(const CurrentRecord& record) {
  QStringList questions{record.問題文};
  QStringList answers = sentenceAnswerLines(record);
  if (!record.sentence) {
    questions.clear();
    for (int k = 1; k <= record.小問数; ++k) questions.append(meaningLine(record.at(k)));
    answers = {record.英語 + BuildPronunciationText(record.発音, QString())};
  }
  Question question;
  for (const QString& text : std::as_const(questions))
    add(question, question.empty() ? u"問題"_s : QString(), text);
  for (qsizetype i = 0; i < answers.size(); ++i)
    add(question, i == 0 ? u"正解"_s : QString(), answers[i]);
  if (!record.コメント.isEmpty()) add(question, u"ｺﾒﾝﾄ"_s, record.コメント);
  return question;
}

void QuestionSheet::draw(PageSurface& page) const {
  PageWriter writer(page, layout, m_head);
  for (const Question& question : m_questions) {
    const std::vector<LabelledText> lines = writer.linesOf(question);
    if (!writer.pageIsEmpty()) {
      if (1 + static_cast<int>(lines.size()) > writer.linesLeft())
        writer.fillPage(u'#');
      else
        writer.rule();
    }
    for (const LabelledText& line : lines) writer.write(line);
  }
}

}  // namespace tavoli
