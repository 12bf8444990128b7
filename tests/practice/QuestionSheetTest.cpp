#include <gtest/gtest.h>

#include "practice/QuestionPrinting.h"
#include "practice/QuestionSheet.h"
#include "tests/support/Drill.h"
#include "tests/support/FakePaper.h"
#include "tests/support/Print.h"
#include "tests/support/TestStore.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

QString numbered(int number, int commentLines = 0) {
  return test::sentenceRecord(u"問い%1番"_s.arg(number), {u"yes"_s}) +
         u"行％"_s.repeated(commentLines);
}

class QuestionSheetTest : public testing::Test {
 protected:
  void draw(const QStringList& records) {
    PracticeSet set = test::setOf(records);
    std::vector<PracticeItem> items;
    for (int i = 1; i <= set.itemCount(); ++i) items.push_back(set.item(i));
    const QuestionSheet sheet(items, u"000"_s, clock.now());
    unpaired = sheet.unpaired();
    sheet.draw(pages);
  }
  /// The pieces of a page that stand in the same line, joined, line by line; a label ends in "|".
  QStringList lines(int page) const {
    QMap<double, QString> byHeight;
    QMap<double, double> end;
    for (const auto& piece : pages.pieces) {
      if (piece.page != page) continue;
      EXPECT_GE(piece.x, end[piece.y]) << qPrintable(piece.text);
      end[piece.y] = piece.x + pages.textWidth(piece.text);
      const QString mark = piece.font.underline ? u"_"_s : piece.font.bold ? u"*"_s : QString();
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
  draw({u"[彼]は％大きい。|030012I am so big.06080000^001003two00000000^|{強調}の説明"_s,
        u"|large^|103大きい^000偉大な^|"_s});
  EXPECT_EQ(lines(1),
            (QStringList{u" UID= 000 2026/04/01  09:00:00|ページ 1"_s, u"問題|_彼_は"_s,
                         u"大きい。"_s, u"正解|I am (so )big."_s, u"two"_s, u"ｺﾒﾝﾄ|*強調*の説明"_s,
                         u"問題|大きい　3回　うろ覚え"_s, u"偉大な　0回　全然"_s, u"正解|big"_s}));
  EXPECT_EQ(pages.rules, 2) << "under the head and between the items";
  EXPECT_FALSE(unpaired);
  draw({u"問[題|000001a00000000^|"_s});
  EXPECT_TRUE(unpaired);
}

TEST_F(QuestionSheetTest, BreaksLongLinesBesideTheLabelColumn) {
  draw({test::sentenceRecord(u"長い問題。"_s.repeated(30), {u"word "_s.repeated(60) + u'.'})});
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
    EXPECT_TRUE(lines(page).first().endsWith(u"ページ %1"_s.arg(page)));
  EXPECT_TRUE(lines(1).last().startsWith(u"####"_s));
  EXPECT_FALSE(lines(1).join(u' ').contains(u"問い2番"_s));
  EXPECT_EQ(lines(2)[1], u"問題|問い2番"_s);
  EXPECT_TRUE(lines(6).contains(u"問題|問い4番"_s));
  const auto last = std::ranges::max_element(
      pages.pieces, {}, [](const test::RecordingPages::Piece& piece) { return piece.y; });
  EXPECT_LE(last->y + 210, 850.5 + 15138.9);
}

TEST_F(QuestionSheetTest, WhatNoPrinterTakesBecomesAFile) {
  LearnerFiles learner;
  learner.userId = u"000"_s;
  learner.dbFileWork = u"/data/TavoDB000.mdb"_s;
  const struct {
    const char* name;
    bool prints, writes;
    const char16_t* told;  ///< its beginning
    bool cleared;
  } cases[] = {
      {"printed", true, true, u"", true},
      {"no printer", false, true,
       u"プリンターで印刷できないので、問題を /data/TavoPrint000-20260401-090000.pdf", true},
      {"no room either", false, false,
       u"問題を印刷できず、/data/TavoPrint000-20260401-090000.pdf にも保存できません", false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    test::FakePaper paper;
    paper.prints = c.prints;
    paper.writes = c.writes;
    QuestionRequests requests;
    EXPECT_EQ(printRequests(requests, learner, paper, clock), QStringList());
    EXPECT_TRUE(paper.printed.pieces.empty() && paper.pdfPath.isEmpty()) << "nothing requested";
    requests.request(test::setOf({numbered(1)}).item(1));
    const QStringList notices = printRequests(requests, learner, paper, clock);
    const QString told = QString::fromUtf16(c.told);
    EXPECT_EQ(notices.join(u'|').left(told.size()), told);
    EXPECT_EQ(notices.size(), c.prints ? 0 : 1);
    EXPECT_EQ(requests.items().empty(), c.cleared);
    EXPECT_EQ(paper.printed.pieces.empty(), !c.prints);
    EXPECT_EQ(paper.written.pieces.empty(), c.prints || !c.writes);
  }
}

}  // namespace
}  // namespace tavoli
