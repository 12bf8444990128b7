#include "practice/QuestionSheet.h"

#include "itemtext/QuestionText.h"

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
  return s.日本語 + blank + QStringLiteral("%1回").arg(s.小問回数) + blank + memoryName(s.記);
}

}  // namespace

QuestionSheet::QuestionSheet(const std::vector<PracticeItem>& items, const QString& userId,
                             const QDateTime& printedAt)
    : m_head(QStringLiteral(" UID= ") + userId +
             printedAt.toString(QStringLiteral(" yyyy/MM/dd  HH:mm:ss"))) {
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
    add(question, question.empty() ? QStringLiteral("問題") : QString(), text);
  for (qsizetype i = 0; i < answers.size(); ++i)
    add(question, i == 0 ? QStringLiteral("正解") : QString(), answers[i]);
  if (!record.コメント.isEmpty()) add(question, QStringLiteral("ｺﾒﾝﾄ"), record.コメント);
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
