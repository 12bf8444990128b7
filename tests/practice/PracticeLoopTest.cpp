#include <gtest/gtest.h>
#include <random>

#include "practice/PracticeLoop.h"
#include "tests/support/Drill.h"
#include "tests/support/Print.h"

namespace tavoli {
namespace {

using test::Drill;

/// A sentence with the answers "one" and "two", their memory codes as given.
QString sentence(QChar first, QChar second) {
  return QStringLiteral("問題|00") + first + QStringLiteral("003one00000000^00") + second +
         QStringLiteral("003two00000000^|");
}

/// The word "big" with two meanings, their memory codes as given.
QString word(QChar first, QChar second) {
  return QStringLiteral("||") + first + QStringLiteral("00大きい^") + second +
         QStringLiteral("00偉大な^|");
}

/// Presses keys one after the other: r the right answer of what is asked, w a wrong one, e Enter on
/// nothing, 1 2 3 4 F1 to F4, K F11, c a click into the answer box, t a minute passes, x F6 and No.
void press(Drill& drill, const QString& keys) {
  for (const QChar key : keys) {
    PracticeLoop& loop = *drill.loop;
    const CurrentRecord& record = loop.state().record;
    switch (key.unicode()) {
      case u'r':
        drill.enter(record.sentence ? record.text(loop.POS1()) : record.英語);
        break;
      case u'w':
        drill.enter(QStringLiteral("nonsense"));
        break;
      case u'e':
        drill.enter(QString());
        break;
      case u'1':
        loop.showAnswer();
        break;
      case u'2':
        loop.nextSubQuestion();
        break;
      case u'3':
        loop.nextItem();
        break;
      case u'4':
        loop.previousItem();
        break;
      case u'K':
        loop.markKnown(false);
        break;
      case u'c':
        loop.answerBoxClicked(drill.screen.answer);
        break;
      case u't':
        drill.clock.time = drill.clock.time.addSecs(59);
        loop.tick();
        break;
      default:
        drill.dialogs.answers = {false};
        loop.requestExit();
    }
  }
}

TEST(PracticeLoopTest, WalksThroughItemsByTheKeys) {
  const QString S = sentence(u'0', u'0');
  const QString W = word(u'0', u'0');
  const struct {
    const char* name;
    QStringList records;
    const char16_t* keys;
    int POS, POS1;
    bool 確認中;
    int finished;
    const char* codes;  // of the first item
    bool clock;
  } cases[] = {
      {"start", {S, W}, u"", 1, 1, false, 0, "00", true},
      {"first blank right", {S, W}, u"r", 1, 2, false, 0, "10", true},
      {"both blanks right", {S, W}, u"rr", 1, 3, true, 1, "11", false},
      {"on to the word", {S, W}, u"rre", 2, 1, false, 1, "11", true},
      {"click leaves the full answer too", {S, W}, u"rrc", 2, 1, false, 1, "11", true},
      {"refused exit at the full answer goes on", {S, W}, u"rrx", 2, 1, false, 1, "11", true},
      {"refused exit while asking stays", {S, W}, u"x", 1, 1, false, 0, "00", true},
      {"wrong stops the clock", {S, W}, u"w", 1, 1, false, 0, "00", false},
      {"wrong first, right next", {S, W}, u"wr", 1, 2, false, 0, "00", true},
      {"time over earns nothing", {S, W}, u"tr", 1, 2, false, 0, "00", true},
      {"the next blank has its own time", {S, W}, u"trr", 1, 3, true, 1, "01", false},
      {"the answer was shown", {S, W}, u"1r", 1, 2, false, 0, "00", true},
      {"F2 on the first blank", {S, W}, u"2", 1, 2, false, 0, "00", true},
      {"F2 on the last: straight on, not counted", {S, W}, u"22", 2, 1, false, 0, "00", true},
      {"F2 first, then answered: counted", {S, W}, u"2r", 1, 3, true, 1, "01", false},
      {"answered first, then F2: not counted", {S, W}, u"r2", 2, 1, false, 0, "10", true},
      {"F3 leaves the item", {S, W}, u"r3", 2, 1, false, 0, "10", true},
      {"F3 at the full answer is refused", {S, W}, u"rr3", 1, 3, true, 1, "11", false},
      {"F4 at item 1 goes to the last", {S, W, S}, u"4", 3, 1, false, 0, "00", true},
      {"F4 from the full answer", {W, S, S}, u"3rr4", 1, 1, false, 1, "00", true},
      {"F3 and F4 bring back", {S, W}, u"343", 2, 1, false, 0, "00", true},
      {"reached by F4, really answered: counted", {S, W}, u"34rr", 1, 3, true, 1, "11", false},
      {"F11 twice: done and counted", {S, W}, u"KK", 1, 3, true, 1, "11", false},
      {"F11 after a wrong entry", {W, S}, u"wK", 1, 2, false, 0, "10", true},
      {"F11 at the full answer is refused", {S, W}, u"KKK", 1, 3, true, 1, "11", false},
      {"a word: one promotion a visit", {W, S}, u"rr", 1, 3, true, 1, "10", false},
      {"a mini test has no clock", {sentence(u'1', u'0'), W}, u"", 1, 1, false, 0, "10", false},
      {"a click starts no clock in it",
       {sentence(u'1', u'0'), W},
       u"c",
       1,
       1,
       false,
       0,
       "10",
       false},
      {"a word's mini test reached by F3",
       {S, word(u'2', u'2')},
       u"3rr",
       2,
       3,
       true,
       1,
       "00",
       false},
      {"fallen to 全然", {sentence(u'2', u'0'), W}, u"ww", 1, 1, false, 0, "00", false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Drill drill(c.records);
    drill.conditions.firstRepeatWord = 1;
    drill.start();
    press(drill, QString::fromUtf16(c.keys));
    EXPECT_EQ(drill.loop->POS(), c.POS);
    EXPECT_EQ(drill.loop->POS1(), c.POS1);
    EXPECT_EQ(drill.loop->確認中(), c.確認中);
    EXPECT_EQ(drill.screen.awaited, c.確認中);
    EXPECT_EQ(drill.finished(), c.finished);
    EXPECT_EQ(QString(drill.stored().記(1)) + drill.stored().記(2), QString::fromLatin1(c.codes));
    EXPECT_EQ(drill.loop->clockRunning(), c.clock);
    EXPECT_EQ(drill.screen.disabled.contains(FunctionKey::F3), c.確認中);
    EXPECT_TRUE(drill.dialogs.shown.isEmpty());
  }
}

TEST(PracticeLoopTest, ItemsWithNothingToAskAreOnlyShown) {
  Drill drill({sentence(u'2', u'2'), word(u'0', u'2'), sentence(u'2', u'2')});
  drill.conditions.memorySelect = u'0';
  drill.start();
  EXPECT_TRUE(drill.loop->確認中());
  EXPECT_EQ(drill.screen.fullAnswer, QStringLiteral("問題\none\ntwo"));
  press(drill, QStringLiteral("er"));
  EXPECT_TRUE(drill.loop->確認中()) << "the second meaning is not asked";
  EXPECT_EQ(drill.finished(), 1);
  press(drill, QStringLiteral("e"));
  EXPECT_TRUE(drill.loop->確認中());
  EXPECT_EQ(drill.finished(), 1);
  EXPECT_TRUE(drill.set.item(3).itemDirty);
  EXPECT_EQ(drill.speaker.said.size(), 3);
}

TEST(PracticeLoopTest, TheEndOfTheListWrapsToTheStart) {
  for (const auto& [keys, answers, POS] :
       {std::tuple(QStringLiteral("33"), QList<bool>{true}, 2),
        std::tuple(QStringLiteral("33"), QList<bool>{false, false}, 2),
        std::tuple(QStringLiteral("322"), QList<bool>{true}, 2)}) {
    Drill drill({word(u'0', u'0'), word(u'0', u'0'), word(u'0', u'0')});
    drill.set.startIndex = 2;
    drill.dialogs.answers = answers;
    drill.start();
    press(drill, keys);
    EXPECT_EQ(drill.loop->POS(), POS);
    EXPECT_FALSE(drill.loop->exitConfirmed());
  }
  Drill drill({word(u'0', u'0'), word(u'0', u'0')});
  drill.start();
  drill.dialogs.answers = {false, true};
  press(drill, QStringLiteral("33"));
  EXPECT_TRUE(drill.loop->exitConfirmed());
  EXPECT_TRUE(drill.screen.closed);
}

TEST(PracticeLoopTest, ChangesTheLesson) {
  Drill drill({word(u'0', u'0'), word(u'0', u'0')});
  drill.start();
  drill.dialogs.answers = {false, true};
  drill.loop->requestLessonChange();
  EXPECT_FALSE(drill.loop->exitConfirmed());
  drill.loop->requestLessonChange();
  EXPECT_EQ(drill.dialogs.asked.last(),
            QStringLiteral("このレッスンファイルを終了して別のレッスンファイルに変更しますか"));
  EXPECT_TRUE(drill.loop->exitConfirmed() && drill.loop->backToConditions());
}

TEST(PracticeLoopTest, TellsDamageOncePerRecord) {
  Drill drill({QStringLiteral("問題[|000003one00000000^000003two00000000^|"),
               QStringLiteral("問||"), word(u'0', u'0')});
  drill.start();
  press(drill, QStringLiteral("rre"));
  EXPECT_EQ(drill.dialogs.shown, (QStringList{QStringLiteral("下線高輝度エラー：dispComment"),
                                              QStringLiteral("Stop31 ﾃﾞｰﾀｴﾗｰ:000020")}));
  press(drill, QStringLiteral("444"));
  EXPECT_EQ(drill.dialogs.shown.size(), 2);

  Drill back({word(u'0', u'0'), QStringLiteral("問||")});
  back.start();
  press(back, QStringLiteral("4"));
  EXPECT_EQ(back.dialogs.shown, QStringList{QStringLiteral("Stop321 ﾃﾞｰﾀｴﾗｰ:000020")});
}

TEST(PracticeLoopTest, LogsAndCountsWhatIsFinished) {
  Drill drill({sentence(u'0', u'0'), word(u'0', u'0')});
  drill.course.COURSE = course高校;
  drill.conditions.firstRepeatWord = 1;
  drill.start();
  drill.loop->toggleLog();
  press(drill, QStringLiteral("rrerr"));
  EXPECT_EQ(drill.screen.log,
            (QStringList{QStringLiteral("-------------- 0001 -------------"),
                         QStringLiteral("問題"), QStringLiteral("one"), QStringLiteral("two"),
                         QStringLiteral("-------------- 0002 -------------"), QStringLiteral("big"),
                         QStringLiteral("大きい  偉大な  ")}));
  EXPECT_EQ(drill.screen.counts.run.sentences[0], 1);
  EXPECT_EQ(drill.screen.counts.run.words[1], 1);
  drill.loop->toggleLog();
  EXPECT_TRUE(drill.screen.log.isEmpty());
}

TEST(PracticeLoopTest, NotesUpToThirtyItemsForPrinting) {
  QStringList records(31, sentence(u'0', u'0'));
  Drill drill(records);
  drill.start();
  const QString told = QStringLiteral(
      "終了時に、この問題と正解、コメントを印刷します。\n%1\n"
      "                  Enterキーを押して下さい。");
  drill.loop->requestPrint();
  EXPECT_EQ(drill.dialogs.shown.last(), told.arg(QStringLiteral("000010")));
  press(drill, QStringLiteral("rr"));
  drill.loop->requestPrint();
  EXPECT_EQ(drill.dialogs.shown.last(), QStringLiteral("既に印刷が要求されています。"));
  EXPECT_TRUE(drill.loop->確認中()) << "noting leaves the full answer on show";
  press(drill, QStringLiteral("e"));
  for (int i = 2; i <= 31; ++i) {
    EXPECT_EQ(drill.loop->POS(), i);
    drill.loop->requestPrint();
    EXPECT_EQ(drill.dialogs.shown.last(), i <= 30
                                              ? told.arg(digits(10 * i, 6))
                                              : QStringLiteral("印刷数の上限 30 を超えました。"));
    press(drill, QStringLiteral("3"));
  }
  const std::vector<PracticeItem>& noted = drill.loop->printRequests().items();
  EXPECT_EQ(noted.size(), 30);
  EXPECT_EQ(noted.front().itemRecord, records.front()) << "as it was when F9 was pressed";
}

TEST(PracticeLoopTest, KeepsTheAnswersTime) {
  Drill drill({QStringLiteral("問題|000010ten letter00000000^|"), word(u'0', u'0')});
  drill.start();
  const auto pass = [&](int seconds) {
    drill.clock.time = drill.clock.time.addSecs(seconds);
    drill.loop->tick();
  };
  EXPECT_TRUE(drill.screen.time.running);
  pass(5);
  EXPECT_EQ(drill.screen.time.seconds, 5);
  EXPECT_DOUBLE_EQ(drill.screen.time.used, 0.2) << "ten characters have 25 seconds";
  pass(19);
  EXPECT_TRUE(drill.speaker.said.isEmpty());
  pass(1);
  EXPECT_DOUBLE_EQ(drill.screen.time.used, 1.0);
  pass(30);
  EXPECT_EQ(drill.speaker.said, QStringList{QStringLiteral("Time is up.")}) << "once";
  press(drill, QStringLiteral("re"));
  EXPECT_EQ(drill.stored().記(1), memory全然);
  drill.loop->chooseTimeUpSound(1);
  pass(11);
  EXPECT_EQ(drill.speaker.beeps, 0) << "a word of three letters has 11.5 seconds";
  pass(1);
  EXPECT_EQ(drill.speaker.beeps, 1);
  press(drill, QStringLiteral("4"));
  drill.loop->chooseTimeUpSound(0);
  pass(100);
  EXPECT_TRUE(drill.loop->state().timeOver) << "without a sound too";
  EXPECT_EQ(drill.speaker.beeps, 1);
}

TEST(PracticeLoopTest, TakesRestFromAMinuteOn) {
  Drill drill({word(u'0', u'0'), word(u'0', u'0')});
  drill.start();
  EXPECT_EQ(drill.screen.panels.value(4), QStringLiteral("開始時刻　09:00"));
  for (const auto& [gap, total] : {std::pair(59, 0), std::pair(60, 60), std::pair(125, 185)}) {
    drill.clock.time = drill.clock.time.addSecs(gap);
    press(drill, QStringLiteral("w"));
    EXPECT_EQ(drill.times.休憩時間, total);
  }
  EXPECT_EQ(drill.screen.panels.value(5), QStringLiteral("休憩時間  3分"));
  EXPECT_EQ(drill.screen.panels.value(6), QStringLiteral("経過時間  4分"));
}

/// Anything may be pressed at any time.
TEST(PracticeLoopTest, RandomKeysNeverLoseTheWay) {
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE(testing::Message() << "seed " << seed);
  std::mt19937 random(seed);
  const auto upTo = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  const QString keys = QStringLiteral("rrrrweee1234Kctx");
  for (int round = 0; round < 100; ++round) {
    QStringList records;
    for (int i = 0; i < 2 + upTo(5); ++i) {
      const QChar a(u'0' + upTo(3));
      const QChar b(u'0' + upTo(3));
      records.append(upTo(2) == 0 ? sentence(a, b) : word(a, b));
    }
    Drill drill(records);
    drill.conditions.memorySelect = QChar(u'0' + upTo(6));
    drill.start();
    const PracticeLoop& loop = *drill.loop;
    for (int step = 0; step < 1000; ++step) {
      const QChar key = keys[upTo(static_cast<int>(keys.size()))];
      const int finished = drill.finished();
      const bool asking = !loop.確認中();
      press(drill, QString(key));
      ASSERT_EQ(drill.dialogs.shown, QStringList());
      ASSERT_FALSE(loop.exitConfirmed());
      const CurrentRecord& record = loop.state().record;
      if (loop.確認中()) {
        ASSERT_FALSE(loop.clockRunning());
        ASSERT_TRUE(drill.screen.awaited);
      } else {
        // What will be judged is what is on the screen.
        ASSERT_TRUE(record.has(loop.POS1()));
        ASSERT_TRUE(memoryAdmitted(drill.conditions.memorySelect, record.記(loop.POS1())) ||
                    record.記(loop.POS1()) == memory全然);
        ASSERT_EQ(drill.screen.question,
                  record.sentence ? record.問題文 : record.text(loop.POS1()));
        ASSERT_EQ(drill.stored(loop.POS()).記(loop.POS1()), record.記(loop.POS1()));
        ASSERT_TRUE(!loop.clockRunning() || record.記(loop.POS1()) == memory全然);
      }
      // An item is counted when its full answer comes up after it was asked, and only then.
      ASSERT_EQ(drill.finished() - finished, asking && loop.確認中() &&
                                                     loop.state().wordShownCount > 0 &&
                                                     key != u'3' && key != u'4'
                                                 ? 1
                                                 : 0)
          << "key " << key.toLatin1();
    }
  }
}

}  // namespace
}  // namespace tavoli
