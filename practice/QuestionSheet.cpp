#include "practice/QuestionSheet.h"

#include "itemtext/LineBreaking.h"
#include "itemtext/QuestionText.h"
#include "system/PageSurface.h"

namespace tavoli {

namespace {

// Twips on A4.
constexpr double left = 850.5;
constexpr double top = 850.5;
constexpr double labelWidth = 850.5;
constexpr double textHeight = 15138.9;
constexpr double lineSpacing = 1.3;
constexpr int headLines = 2;

PageFont fontFor(bool bold, bool underline) {
  return {PageFont::Face::Gothic, 10.5, bold, underline};
}

/// Writes line after line, and goes on to the next page where one is full.
class PageWriter {
 public:
  PageWriter(PageSurface& page, const QString& head) : m_page(page), m_head(head) {
    m_page.setFont(fontFor(false, false));
    m_pitch = m_page.lineHeight() * lineSpacing;
    m_linesPerPage = static_cast<int>(textHeight / m_pitch);
    printHead();
  }

  double textWidth() const { return right() - left - labelWidth; }

  void printQuestion(const std::vector<LabelledText>& lines) {
    if (m_line > headLines) {
      if (m_line + 1 + static_cast<int>(lines.size()) > m_linesPerPage)
        fillPage();
      else
        printRule();
    }
    for (const LabelledText& line : lines) {
      if (m_line == m_linesPerPage) beginPage();
      if (!line.label.isEmpty()) m_page.drawText(left, y(), line.label);
      printMarked(line.text);
      ++m_line;
    }
  }

 private:
  double right() const { return m_page.width() - left; }
  double y() const { return top + m_line * m_pitch; }

  void beginPage() {
    m_page.newPage();
    printHead();
  }

  void printHead() {
    m_line = 0;
    const QString number = QStringLiteral("ページ %1").arg(++m_pageNumber);
    m_page.drawText(left, y(), m_head);
    m_page.drawText(right() - m_page.textWidth(number), y(), number);
    m_line = headLines;
    const double underHead = top + (headLines - 0.6) * m_pitch;
    m_page.drawLine(left, underHead, right(), underHead);
  }

  void printRule() {
    const double middle = y() + m_page.lineHeight() / 2;
    m_page.drawLine(left, middle, right(), middle);
    ++m_line;
  }

  /// Shows that the page ends here on purpose.
  void fillPage() {
    const QChar filling = u'#';
    const auto count = static_cast<qsizetype>((right() - left) / m_page.textWidth(filling));
    for (; m_line < m_linesPerPage; ++m_line) m_page.drawText(left, y(), QString(count, filling));
    beginPage();
  }

  void printMarked(const MarkedText& line) {
    double x = left + labelWidth;
    const auto print = [&](qsizetype from, qsizetype end, const PageFont& font) {
      if (from == end) return;
      const QString piece = line.text.sliced(from, end - from);
      m_page.setFont(font);
      m_page.drawText(x, y(), piece);
      x += m_page.textWidth(piece);
    };
    qsizetype printed = 0;
    for (const MarkedText::Span& span : line.spans) {
      const bool underlined = span.kind == MarkedText::Span::Kind::Underlined;
      const qsizetype end = span.offset + span.length;
      print(printed, span.offset, fontFor(false, false));
      print(span.offset, end, fontFor(!underlined, underlined));
      printed = end;
    }
    print(printed, line.text.size(), fontFor(false, false));
    m_page.setFont(fontFor(false, false));
  }

  PageSurface& m_page;
  const QString& m_head;
  double m_pitch = 0;
  int m_linesPerPage = 0;
  int m_line = 0;
  int m_pageNumber = 0;
};

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
  PageWriter writer(page, m_head);
  for (const Question& question : m_questions) {
    // Bold letters may be the wider ones: what fits in bold fits in any case.
    page.setFont(fontFor(true, false));
    std::vector<LabelledText> lines;
    for (const LabelledText& paragraph : question) {
      QString label = paragraph.label;
      for (MarkedText& line :
           breakLines(paragraph.text, writer.textWidth(),
                      [&page](const QString& text) { return page.textWidth(text); }))
        lines.push_back({std::exchange(label, QString()), std::move(line)});
    }
    page.setFont(fontFor(false, false));
    writer.printQuestion(lines);
  }
}

}  // namespace tavoli
