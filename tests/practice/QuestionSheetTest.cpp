#include <gtest/gtest.h>

#include "practice/QuestionPrinting.h"
#include "practice/QuestionSheet.h"
#include "tests/support/FakePaper.h"
#include "tests/support/Fakes.h"
#include "tests/support/Print.h"
#include "tests/support/TestStore.h"

namespace tavoli {
namespace {

PracticeItem sentenceItem(const QString& key, const QString& record) {
  PracticeItem item;
  item.itemEnglish = key;
  item.itemTable = tableOfSentences;
  item.itemRecord = record;
  return item;
}

PracticeItem wordItem(const QString& key, const QString& record) {
  PracticeItem item = sentenceItem(key, record);
  item.itemTable = u'1';
  return item;
}

PracticeItem numbered(int number, int commentLines = 0) {
  return sentenceItem(
      digits(number, 6),
      test::sentenceRecord(QStringLiteral("問い%1番").arg(number), {QStringLiteral("yes")}) +
          QString(QStringLiteral("行％")).repeated(commentLines));
}

class QuestionSheetTest : public testing::Test {
 protected:
  void draw(const std::vector<PracticeItem>& items) {
    const QuestionSheet sheet(items, QStringLiteral("000"), clock.now());
    unpaired = sheet.unpaired();
    sheet.draw(pages);
  }
  /// The pieces of a page that stand in the same line, joined, line by line; a label ends in "|".
  QStringList lines(int page) const {
    QMap<double, QString> byHeight;
    for (const auto& piece : pages.pieces) {
      if (piece.page != page) continue;
      const QString mark = piece.font.underline ? QStringLiteral("_")
                           : piece.font.bold    ? QStringLiteral("*")
                                                : QString();
      byHeight[piece.y] += mark + piece.text + mark;
      if (piece.x < 1000) byHeight[piece.y] += u'|';
    }
    return byHeight.values();
  }

  test::FakeClock clock;
  test::RecordingPages pages;
  bool unpaired = false;
};

TEST_F(QuestionSheetTest, PrintsSentencesAndWordsWithTheirLabels) {
  draw(
      {sentenceItem(QStringLiteral("000010"),
                    QStringLiteral("[彼]は％大きい。|030012I am so big.06080000^001003two00000000^|"
                                   "{強調}の説明")),
       wordItem(QStringLiteral("big"), QStringLiteral("発bi′g|large^|103大きい^000偉大な^|"))});
  EXPECT_EQ(
      lines(1),
      (QStringList{
          QStringLiteral(" UID= 000 2026/04/01  09:00:00|ページ 1"), QStringLiteral("問題|_彼_は"),
          QStringLiteral("大きい。"), QStringLiteral("正解|I am (so )big."), QStringLiteral("two"),
          QStringLiteral("ｺﾒﾝﾄ|*強調*の説明"), QStringLiteral("問題|大きい　3回　うろ覚え"),
          QStringLiteral("偉大な　0回　全然"), QStringLiteral("正解|big  *発音注意*［ b*i*g ］")}));
  EXPECT_EQ(pages.rules, 2) << "under the head and between the items";
  EXPECT_FALSE(unpaired);
  draw({sentenceItem(QStringLiteral("000010"), QStringLiteral("問[題|000001a00000000^|"))});
  EXPECT_TRUE(unpaired);
}

TEST_F(QuestionSheetTest, BreaksLongLinesBesideTheLabelColumn) {
  draw({sentenceItem(QStringLiteral("000010"),
                     test::sentenceRecord(QStringLiteral("長い問題。").repeated(30),
                                          {QStringLiteral("word ").repeated(60) + u'.'}))});
  for (const auto& piece : pages.pieces) {
    const QString seen = piece.text.trimmed();
    EXPECT_LE(piece.x + pages.textWidth(seen), 11906 - 850.5 + 1) << qPrintable(piece.text);
    EXPECT_TRUE(piece.x < 1000 || piece.x >= 850.5 + 850.5) << qPrintable(piece.text);
  }
  EXPECT_GT(lines(1).size(), 6);
}

TEST_F(QuestionSheetTest, AnItemThatWouldPassThePageBeginsTheNextOneUnlessItIsLonger) {
  draw({numbered(1, 30), numbered(2, 30), numbered(3, 200), numbered(4)});
  EXPECT_EQ(pages.pages, 6);
  for (int page = 1; page <= 6; ++page)
    EXPECT_TRUE(lines(page).first().endsWith(QStringLiteral("ページ %1").arg(page)));
  EXPECT_TRUE(lines(1).last().startsWith(QStringLiteral("####")));
  EXPECT_FALSE(lines(1).join(u' ').contains(QStringLiteral("問い2番")));
  EXPECT_EQ(lines(2)[1], QStringLiteral("問題|問い2番"));
  EXPECT_TRUE(lines(6).contains(QStringLiteral("問題|問い4番")));
  const auto last = std::ranges::max_element(
      pages.pieces, {}, [](const test::RecordingPages::Piece& piece) { return piece.y; });
  EXPECT_LE(last->y + 210, 850.5 + 15138.9);
}

TEST_F(QuestionSheetTest, WhatNoPrinterTakesBecomesAFile) {
  LearnerFiles learner;
  learner.userId = QStringLiteral("000");
  learner.dbFileWork = QStringLiteral("/data/TavoDB000.mdb");
  const struct {
    const char* name;
    bool prints, writes;
    const char16_t* told;
    bool cleared;
  } cases[] = {
      {"printed", true, true, u"", true},
      {"no printer", false, true,
       u"プリンターで印刷できないので、問題を /data/TavoPrint000-20260401-090000.pdf に PDF "
       u"で保存しました。",
       true},
      {"no room either", false, false,
       u"問題を印刷できず、/data/TavoPrint000-20260401-090000.pdf にも保存できませんでした。"
       u"練習結果は保存してあります。",
       false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    test::FakePaper paper;
    paper.prints = c.prints;
    paper.writes = c.writes;
    test::ScriptedDialogs dialogs;
    QuestionRequests requests;
    printRequests(requests, learner, paper, clock, dialogs);
    EXPECT_TRUE(paper.printed.pieces.empty() && paper.pdfPath.isEmpty()) << "nothing requested";
    requests.request(numbered(1));
    printRequests(requests, learner, paper, clock, dialogs);
    EXPECT_EQ(dialogs.shown.join(u'|'), QString::fromUtf16(c.told));
    EXPECT_EQ(requests.items().empty(), c.cleared);
    EXPECT_EQ(paper.printed.pieces.empty(), !c.prints);
    EXPECT_EQ(paper.written.pieces.empty(), c.prints || !c.writes);
  }
}

}  // namespace
}  // namespace tavoli
