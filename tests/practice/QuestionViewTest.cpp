#include <functional>
#include <gtest/gtest.h>
#include <map>

#include "practice/QuestionView.h"
#include "tests/support/Print.h"
#include "tests/support/TestStore.h"

namespace tavoli {
namespace {

/// The text with what is asked between < >, what was answered between / /, and marks as ever.
QString drawn(MarkedText marked) {
  using Kind = MarkedText::Span::Kind;
  std::map<qsizetype, QString, std::greater<>> signs;
  for (const MarkedText::Span& span : marked.spans) {
    const QString pair = span.kind == Kind::Asked      ? QStringLiteral("<>")
                         : span.kind == Kind::Answered ? QStringLiteral("//")
                                                       : QStringLiteral("{}");
    signs[span.offset] += pair[0];
    signs[span.offset + span.length] += pair[1];
  }
  for (const auto& [place, sign] : signs) marked.text.insert(place, sign);
  return marked.text;
}

TEST(QuestionView, MarksTheAskedBlankAndFillsTheAnsweredOnes) {
  const struct {
    const char* name;
    const char16_t* question;
    const char16_t* answers;
    int POS1;
    const char* answered;  ///< from the last 小問 to the first
    const char16_t* shown;
    const char16_t* hint;
  } cases[] = {
      {"one blank", u"I (   ) {a} boy.", u"am", 1, "0", u"I <(   )> {a} boy.", u""},
      {"second", u"(   ) he ( ) {a}?", u"Does|have", 2, "01", u"(/Does/) he <( )> {a}?",
       u"小問 2／2"},
      {"first skipped", u"{a} (　) (   ) b", u"x|y", 2, "00", u"{a} (　) <(   )> b", u"小問 2／2"},
      {"back again", u"A (   ) (   ) {b}", u"x|long", 1, "10", u"A <(   )> (/long/) {b}",
       u"小問 1／2"},
      {"all answered", u"A (   ) (   ) b", u"x|y", 3, "11", u"A (/x/) (/y/) b", u""},
      {"marked blank", u"{a (   )} (   )", u"long|y", 2, "01", u"{a (/long/)} <(   )>",
       u"小問 2／2"},
      {"fewer blanks", u"A (   ) b", u"x|y", 1, "00", u"A (   ) b", u"小問 1／2"},
      {"more blanks", u"(   ) (   )", u"x", 1, "0", u"(   ) (   )", u""},
      {"no blank", u"訳しなさい。(a) ～", u"x", 1, "0", u"訳しなさい。(a) ～",
       u"～ は Shift+0 か ~ のキー"},
      {"both hints", u"(   )～(   )", u"x|y", 1, "00", u"<(   )>～(   )",
       u"小問 1／2　～ は Shift+0 か ~ のキー"},
      {"correction", u"次の英文に誤りがあれば訂正しなさい。A (   ).", u"x", 1, "0",
       u"次の英文に誤りがあれば訂正しなさい。A (   ).", u""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const QString question = QString::fromUtf16(c.question);
    const CurrentRecord record =
        ParseRecord(test::sentenceRecord(question, QString::fromUtf16(c.answers).split(u'|')),
                    QStringLiteral("000010"), TableCode::sentences);
    const QuestionView view = questionView(parseMarks(question), record, c.POS1,
                                           AnsweredSubQuestions(std::string(c.answered) + '0'));
    EXPECT_EQ(drawn(view.question), QString::fromUtf16(c.shown));
    EXPECT_EQ(answerHint(view), QString::fromUtf16(c.hint));
  }
}

TEST(QuestionView, MarksNothingInAWord) {
  const CurrentRecord record =
      ParseRecord(test::wordRecord({QStringLiteral("(   )の"), QStringLiteral("b")}),
                  QStringLiteral("big"), TableCode::first);
  const QuestionView view = questionView(plainText(record.text(1)), record, 1, {});
  EXPECT_TRUE(view.question.spans.empty());
  EXPECT_EQ(answerHint(view), QStringLiteral("小問 1／2"));
}

}  // namespace
}  // namespace tavoli
