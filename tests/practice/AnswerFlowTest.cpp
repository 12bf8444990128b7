#include <gtest/gtest.h>

#include "tests/support/Drill.h"
#include "tests/support/Print.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

using test::Drill;

/// "I am big." with the contraction "I'm " and the literal "huge" for "big", followed by another
/// blank.
QString sentenceWith(QChar code) {
  return u"問|00"_s + code + u"009I am big.0000010101050010608"_s + u"04huge^"_s +
         u"000004next00000000^|"_s;
}

/// "big" with the synonym "large" and two meanings.
QString wordWith(QChar code) {
  return u"|large^|"_s + code + u"00大きい^000偉大な^|"_s;
}

TEST(AnswerFlowTest, MovesTheMemoryStateByTheTable) {
  const QString promoted = u"○　正解です。　『うろ覚え』にしました。"_s;
  const QString promotedWord = u"○　正解です。『うろ覚え』にしました。『 大きい 』"_s;
  const QString right = u"○　正解です。\n"_s;
  const QString complete = u"○　正解です。　『完全記憶』にしました。"_s;
  const QString completeVariant = u"◎　正解です。　『完全記憶』にしました。"_s;
  const QString keptUro = u"○　正解です。　『うろ覚えを維持』します。"_s;
  const QString kept = u"○　正解です。　『完全記憶を維持』します。"_s;
  const QString keptVariant = u"◎　正解です。　『完全記憶を維持』します。"_s;
  const QString fallen = u"『全然』に記憶状態を戻しました。"_s;
  const struct {
    char kind;  // S sentence, W word
    QChar from;
    const char* keys;
    QChar to;
    QString message;
    bool next;
  } rows[] = {
      {'S', u'0', "r", u'1', promoted, true},
      {'S', u'0', "v", u'1', promoted, true},
      {'S', u'0', "wr", u'0', right, true},
      {'S', u'0', "wv", u'0', u"◎　正解です。\n"_s, true},
      {'S', u'0', "mr", u'0', right, true},
      {'S', u'0', "tr", u'0', right, true},
      {'S', u'0', "1r", u'0', right, true},
      {'S', u'0', "K", u'1', u"『うろ覚え』にしました。"_s, true},
      {'W', u'0', "r", u'1', promotedWord, true},
      {'W', u'0', "wr", u'0', u"あと 1 回練習して下さい。"_s, false},
      {'W', u'0', "wrr", u'0', right, true},
      {'W', u'0', "K", u'1', u"『うろ覚え』にしました。『 大きい 』"_s, true},
      {'S', u'1', "r", u'2', complete, true},
      {'S', u'1', "v", u'2', completeVariant, true},
      {'S', u'1', "wr", u'1', keptUro, true},
      {'S', u'1', "wv", u'1', keptUro, true},
      {'S', u'1', "wt", u'1', keptUro, true},
      {'S', u'1', "tr", u'1', keptUro, true},
      {'S', u'1', "mr", u'2', complete, true},
      {'S', u'1', "wmr", u'1', keptUro, true},
      {'S', u'1', "ww", u'0', fallen, false},
      {'S', u'1', "tw", u'0', fallen, false},
      {'S', u'1', "wwr", u'0', right, true},
      {'S', u'1', "1r", u'2', complete, true},
      {'S', u'1', "K", u'1', u"『 I am big.』：記憶状態の変化なし。"_s, true},
      {'W', u'1', "r", u'2', complete, true},
      {'W', u'1', "tt", u'1', keptUro, true},
      {'S', u'2', "r", u'2', kept, true},
      {'S', u'2', "v", u'2', keptVariant, true},
      {'S', u'2', "wr", u'2', kept, true},
      {'S', u'2', "ww", u'0', fallen, false},
      {'W', u'2', "K", u'2', u"『 大きい』：記憶状態の変化なし。"_s, true},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.kind << row.from.toLatin1() << " " << row.keys);
    const bool isSentence = row.kind == 'S';
    Drill drill({isSentence ? sentenceWith(row.from) : wordWith(row.from), wordWith(u'0')});
    drill.start();
    drill.press(row.keys);
    EXPECT_EQ(stored(drill.stored().記(1)), row.to);
    EXPECT_EQ(drill.screen.message, row.message);
    EXPECT_EQ(drill.loop->POS1(), row.next ? 2 : 1);
    const bool judgedRight = row.next && *row.keys != 'K';
    EXPECT_EQ(drill.stored().at(1).小問回数, !isSentence && judgedRight ? 1 : 0);
    EXPECT_TRUE(drill.dialogs.shown.isEmpty());
  }
}

TEST(AnswerFlowTest, ADamagedRecordIsToldToKeepItsMemory) {
  const QString kept = u"この項目のデータに誤りがあるため、記憶状態は変更しません。"_s;
  const QString right = u"○　正解です。\n"_s;
  const struct {
    QChar from;
    const char* keys;
    QString message;
  } rows[] = {
      {u'0', "r", right + kept}, {u'0', "K", kept},
      {u'1', "r", right + kept}, {u'1', "ww", kept},
      {u'0', "r4r", right},      {u'2', "r", u"○　正解です。　『完全記憶を維持』します。"_s},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.from.toLatin1() << " " << row.keys);
    const QString record = u"||"_s + row.from + u"5大きい^000偉大な^|"_s;
    Drill drill({record});
    drill.conditions.firstRepeatWord = 1;
    drill.start();
    drill.press(row.keys);
    EXPECT_EQ(drill.screen.message, row.message);
    EXPECT_EQ(drill.set.item(1).itemRecord, record);
  }
  // A row that could not be read whole packs back all the same.
  Drill unreadable({wordWith(u'0')});
  PracticeItem damaged = unreadable.set.item(1);
  damaged.damaged = true;
  unreadable.set = PracticeSet();
  unreadable.set.append(damaged);
  unreadable.start();
  unreadable.press("r");
  EXPECT_EQ(unreadable.screen.message, right + kept);
  EXPECT_EQ(unreadable.set.item(1).itemRecord, wordWith(u'0'));
}

TEST(AnswerFlowTest, AMiniTestLeavesTheRepeatsToTheNextLearntBlank) {
  const QString blanks = u"問題|000009I am big.000001010105001^"_s +
                         u"001009I am big.000001010105001^"_s + u"000004next00000000^|"_s;
  for (const auto& [keys, left] :
       {std::pair("wrKr", 2), std::pair("wrKwv", 2), std::pair("wrKv", 3)}) {
    Drill drill({blanks});
    drill.conditions.firstRepeatSent = 3;
    drill.start();
    drill.press(keys);
    EXPECT_EQ(drill.loop->POS1(), 3) << keys;
    EXPECT_EQ(drill.loop->attempt().repeatsLeft, left) << keys;
  }
}

TEST(AnswerFlowTest, FurtherMeaningsNeedNoRepeats) {
  Drill drill({u"||000大きい^000偉大な^|"_s});
  drill.conditions.firstRepeatWord = 3;
  drill.start();
  drill.press("rwr");
  EXPECT_TRUE(drill.loop->確認中());
}

TEST(AnswerFlowTest, DrawsTheMarksOfAMeaningInItsMessage) {
  Drill drill({u"||000{大きな}箱^|"_s});
  drill.start();
  drill.press("r");
  EXPECT_EQ(drill.screen.message, u"○　正解です。『うろ覚え』にしました。『 大きな箱 』"_s);
}

TEST(AnswerFlowTest, TellsWhatWasWrong) {
  const QString S = sentenceWith(u'0');
  const QString W = wordWith(u'0');
  const struct {
    const char* name;
    const QString& record;
    const char16_t* typed;
    const char16_t* told;
    const char16_t* red;
    const char16_t* left;  // to go on typing
    const char16_t* lookedUp;
  } cases[] = {
      {"a letter", S, u"I an big.", u"I an big. は正解ではありません。", u"n", u"", u""},
      {"a start, its last letter", S, u"I am", u"I am は正解ではありません。", u"m", u"", u""},
      {"no mark", S, u"I am big", u"I am big は正解ではありません。\n終止符\"．\"がありません。",
       u"", u"I am big", u""},
      {"another mark", S, u"I am big!", u"I am big! は正解ではありません。", u"!", u"I am big!",
       u""},
      {"tolerated", S, u"I am huge .", u"I am huge . も正解ですが、\nI am big. を覚えてください。",
       u"", u"", u""},
      {"another word", W, u"huge", u"huge は正解ではありません。", u"huge", u"", u"huge"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Drill drill({c.record, W});
    drill.start();
    drill.enter(QString::fromUtf16(c.typed));
    EXPECT_EQ(drill.screen.fullAnswer, QString::fromUtf16(c.told));
    EXPECT_EQ(drill.screen.red, QString::fromUtf16(c.red));
    EXPECT_EQ(drill.screen.answer, QString::fromUtf16(c.left));
    EXPECT_EQ(drill.screen.lookedUp, QString::fromUtf16(c.lookedUp));
    drill.press("1");
    EXPECT_TRUE(drill.screen.fullAnswer.startsWith(u"正解："_s));
  }
}

TEST(AnswerFlowTest, AnnouncesAMiniTestAndWithholdsTheAnswer) {
  Drill drill({sentenceWith(u'1'), wordWith(u'2')});
  drill.start();
  EXPECT_EQ(drill.screen.miniTest,
            u"小問Ｎｏ.1\n記憶状態（現在『うろ』）を変化させます。\n\n"
            u"１回目で正解すれば『完全』記憶に変更、\n２回目で正解すれば不変、\n"
            u"２回以上間違えば『全然』に変更します。"_s);
  EXPECT_TRUE(drill.screen.disabled.contains(FunctionKey::F1));
  drill.loop->showAnswer();
  EXPECT_EQ(drill.screen.fullAnswer, QString());
  drill.enter(u"wrong"_s);
  EXPECT_EQ(drill.screen.fullAnswer, u"wrong は正解ではありません。　試行数 = 1"_s);
  EXPECT_EQ(drill.screen.red, QString());
  EXPECT_EQ(drill.screen.miniTest, QString()) << "the notice goes with the entry";
  drill.enter(u"wrong"_s);
  EXPECT_FALSE(drill.screen.disabled.contains(FunctionKey::F1)) << "back in the learning flow";
  drill.loop->markKnown(Pressed::Button);
  drill.loop->markKnown(Pressed::Button);
  drill.enter(QString());
  EXPECT_EQ(drill.screen.miniTest,
            u"小問Ｎｏ.1\n記憶状態（現在『完全』）を変化させます。\n\n"
            u"１、２回目で正解すれば『完全』を維持、\n２回以上間違えば『全然』に変更します。"_s);
  drill.loop->markKnown(Pressed::Button);
  EXPECT_EQ(drill.screen.message, u"「 大きい」：記憶状態の変化なし。"_s);
}

TEST(AnswerFlowTest, AnEntryOfNothingNewCostsNothing) {
  Drill drill({u"問|030009He is big00000000^|"_s, wordWith(u'1')});
  drill.start();
  EXPECT_EQ(drill.screen.answer, u"He "_s);
  for (const char16_t* typed : {u"", u"He ", u"He", u"  "}) drill.enter(QString::fromUtf16(typed));
  drill.enter(u"He is big"_s);
  EXPECT_EQ(drill.stored().記(1), MemoryState::うろ覚え);
  drill.enter(QString());
  drill.enter(u" "_s);
  drill.enter(u"big"_s);
  EXPECT_EQ(drill.stored(2).記(1), MemoryState::完全);
}

TEST(AnswerFlowTest, ComparesAsChosenAndRemembersIt) {
  Drill drill({wordWith(u'0'), wordWith(u'0')});
  drill.conditions.compareFlag = false;
  drill.start();
  EXPECT_EQ(drill.screen.comparison, 0);
  drill.loop->nextComparison();
  drill.enter(u"BIG"_s);
  EXPECT_EQ(drill.screen.fullAnswer, u"BIG は正解ではありません。"_s);
  EXPECT_EQ(drill.loop->conditions().compareMode, CompareMode::caseMatters);
}

TEST(AnswerFlowTest, GuardsACodeThatIsNoState) {
  Drill drill({wordWith(u'7'), wordWith(u'0')});
  drill.start();
  drill.enter(u"big"_s);
  EXPECT_EQ(drill.dialogs.shown, QStringList{u"MiniTest 記(POS1)１=7"_s});
  EXPECT_EQ(stored(drill.stored().記(1)), u'7');
}

}  // namespace
}  // namespace tavoli
