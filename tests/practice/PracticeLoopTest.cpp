#include <gtest/gtest.h>

#include "practice/PracticeLoop.h"
#include "tests/support/Drill.h"
#include "tests/support/Print.h"
#include "tests/support/Seed.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

using test::Drill;

/// A sentence with the answers "one" and "two", their memory codes as given.
QString sentence(QChar first, QChar second) {
  return u"問題|00"_s + first + u"003one00000000^00"_s + second + u"003two00000000^|"_s;
}

/// The word "big" with two meanings, their memory codes as given.
QString word(QChar first, QChar second) {
  return u"||"_s + first + u"00大きい^"_s + second + u"00偉大な^|"_s;
}

TEST(PracticeLoopTest, WalksThroughItemsByTheKeys) {
  const QString S = sentence(u'0', u'0');
  const QString W = word(u'0', u'0');
  const struct {
    const char* name;
    QStringList records;
    const char* keys;
    int POS, POS1;
    bool 確認中;
    int finished;
    const char* codes;  // of the first item
    bool clock;
  } cases[] = {
      {"start", {S, W}, "", 1, 1, false, 0, "00", true},
      {"both blanks right", {S, W}, "rr", 1, 3, true, 1, "11", false},
      {"click leaves the full answer too", {S, W}, "rrc", 2, 1, false, 1, "11", true},
      {"refused exit at the full answer goes on", {S, W}, "rrx", 2, 1, false, 1, "11", true},
      {"refused exit while asking stays", {S, W}, "x", 1, 1, false, 0, "00", true},
      {"wrong stops the clock", {S, W}, "w", 1, 1, false, 0, "00", false},
      {"wrong first, right next", {S, W}, "wr", 1, 2, false, 0, "00", true},
      {"the next blank has its own time", {S, W}, "Trr", 1, 3, true, 1, "01", false},
      {"the answer was shown, of one blank", {S, W}, "1rr", 1, 3, true, 1, "01", false},
      {"F2 on the last: straight on, not counted", {S, W}, "22", 2, 1, false, 0, "00", true},
      {"F3 at the full answer is refused", {S, W}, "rr3", 1, 3, true, 1, "11", false},
      {"F4 at item 1 goes to the last", {S, W, S}, "4", 3, 1, false, 0, "00", true},
      {"F4 from the full answer", {W, S, S}, "3rr4", 1, 1, false, 1, "00", true},
      {"F11 twice: done and counted", {S, W}, "KK", 1, 3, true, 1, "11", false},
      {"F11 at the full answer is refused", {S, W}, "KKK", 1, 3, true, 1, "11", false},
      {"a word: one promotion a visit", {W, S}, "rr", 1, 3, true, 1, "10", false},
      {"a mini test has no clock", {sentence(u'1', u'0'), W}, "", 1, 1, false, 0, "10", false},
      {"nor has a click into it", {sentence(u'1', u'0'), W}, "c", 1, 1, false, 0, "10", false},
      {"a mini test by F3", {S, word(u'2', u'2')}, "3rr", 2, 3, true, 1, "00", false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Drill drill(c.records);
    drill.conditions.firstRepeatWord = 1;
    drill.start();
    drill.press(c.keys);
    EXPECT_EQ(drill.loop->POS(), c.POS);
    EXPECT_EQ(drill.loop->POS1(), c.POS1);
    EXPECT_EQ(drill.loop->確認中(), c.確認中);
    EXPECT_EQ(drill.screen.awaited, c.確認中);
    EXPECT_EQ(drill.finished(), c.finished);
    EXPECT_EQ(QString(stored(drill.stored().記(1))) + stored(drill.stored().記(2)),
              QString::fromLatin1(c.codes));
    EXPECT_EQ(drill.loop->clockRunning(), c.clock);
    EXPECT_EQ(drill.screen.disabled.contains(FunctionKey::F3), c.確認中);
    EXPECT_TRUE(drill.dialogs.shown.isEmpty());
  }
}

TEST(PracticeLoopTest, ItemsWithNothingToAskAreOnlyShown) {
  Drill drill({sentence(u'2', u'2'), word(u'0', u'2'), sentence(u'2', u'2')});
  drill.conditions.memorySelect = MemorySelect::全然;
  drill.start();
  EXPECT_TRUE(drill.loop->確認中());
  EXPECT_EQ(drill.screen.fullAnswer, u"問題\none\ntwo"_s);
  drill.press("er");
  EXPECT_TRUE(drill.loop->確認中()) << "the second meaning is not asked";
  EXPECT_EQ(drill.finished(), 1);
  drill.press("e");
  EXPECT_TRUE(drill.loop->確認中());
  EXPECT_EQ(drill.screen.question + drill.screen.source + drill.screen.panels.value(7), QString())
      << "nothing is left of the item before";
  EXPECT_EQ(drill.finished(), 1);
  EXPECT_TRUE(drill.set.item(3).itemDirty);
}

TEST(PracticeLoopTest, TheEndOfTheListWrapsToTheStartOrEndsTheRun) {
  const QString wrap = u"最後まで終了しました。最初から再開しますか。"_s;
  const QString end = u"終了しますか？"_s;
  const struct {
    const char* name;
    const char* keys;
    QList<bool> answers;
    QStringList asked;
    bool ended;
  } cases[] = {{"by F3", "33", {true}, {wrap}, false},
               {"no, but not the end either", "33", {false, false}, {wrap, end}, false},
               {"the end", "33", {false, true}, {wrap, end}, true}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Drill drill({word(u'0', u'0'), word(u'0', u'0'), word(u'0', u'0')});
    drill.set.startIndex = 2;
    drill.dialogs.answers = c.answers;
    drill.start();
    drill.press(c.keys);
    EXPECT_EQ(drill.dialogs.asked, c.asked);
    EXPECT_EQ(drill.loop->exitConfirmed(), c.ended);
    EXPECT_EQ(drill.screen.closed, c.ended);
    if (!c.ended) EXPECT_EQ(drill.loop->POS(), 2);
  }
}

TEST(PracticeLoopTest, ChangesTheLessonWhenThatIsConfirmed) {
  Drill drill({word(u'0', u'0'), word(u'0', u'0')});
  drill.start();
  drill.dialogs.answers = {false, true};
  drill.loop->requestLessonChange();
  EXPECT_FALSE(drill.loop->exitConfirmed());
  drill.loop->requestLessonChange();
  EXPECT_TRUE(drill.loop->exitConfirmed() && drill.loop->backToConditions());
}

TEST(PracticeLoopTest, TellsDamageOncePerRecord) {
  Drill drill({u"問題[|000003one00000000^000003two00000000^|"_s, u"問||"_s, word(u'0', u'0')});
  drill.start();
  drill.press("rre");
  EXPECT_EQ(drill.dialogs.shown,
            (QStringList{u"下線高輝度エラー：dispComment"_s, u"Stop31 ﾃﾞｰﾀｴﾗｰ:000020"_s}));
  drill.press("444");
  EXPECT_EQ(drill.dialogs.shown.size(), 2);

  Drill back({word(u'0', u'0'), u"問||"_s});
  back.start();
  back.press("4");
  EXPECT_EQ(back.dialogs.shown, QStringList{u"Stop321 ﾃﾞｰﾀｴﾗｰ:000020"_s});
}

TEST(PracticeLoopTest, LogsAndCountsWhatIsFinished) {
  Drill drill({sentence(u'0', u'0'), word(u'0', u'0')});
  drill.course.COURSE = Course::高校;
  drill.conditions.firstRepeatWord = 1;
  drill.start();
  drill.loop->toggleLog();
  drill.press("rrerr");
  EXPECT_EQ(drill.screen.log,
            (QStringList{u"-------------- 0001 -------------"_s, u"問題"_s, u"one"_s, u"two"_s,
                         u"-------------- 0002 -------------"_s, u"big"_s, u"大きい  偉大な  "_s}));
  EXPECT_EQ(drill.screen.counts.run.sentences[0], 1);
  EXPECT_EQ(drill.screen.counts.run.words[1], 1);
  drill.loop->toggleLog();
  EXPECT_TRUE(drill.screen.log.isEmpty());
}

TEST(PracticeLoopTest, NotesUpToThirtyItemsForPrinting) {
  const QStringList records(31, sentence(u'0', u'0'));
  Drill drill(records);
  drill.start();
  drill.loop->requestPrint();
  drill.press("rr");
  drill.loop->requestPrint();
  EXPECT_TRUE(drill.loop->確認中()) << "noting leaves the full answer on show";
  drill.press("e");
  for (int i = 2; i <= 31; ++i) {
    drill.loop->requestPrint();
    drill.press("3");
  }
  EXPECT_EQ(drill.dialogs.shown.last(), u"印刷数の上限 30 を超えました。"_s);
  const std::vector<PracticeItem>& noted = drill.loop->printRequests().items();
  ASSERT_EQ(noted.size(), 30);
  EXPECT_EQ(noted.back().itemEnglish, u"000300"_s);
  EXPECT_EQ(noted.front().itemRecord, records.front()) << "as it was when F9 was pressed";
}

TEST(PracticeLoopTest, KeepsTheAnswersTime) {
  Drill drill({u"問題|000010ten letter00000000^|"_s, word(u'0', u'0')});
  drill.conditions.targetWordA = 1.5;
  drill.conditions.targetWordB = 7;
  drill.start();
  EXPECT_TRUE(drill.screen.time.running);
  drill.pass(5);
  EXPECT_EQ(drill.screen.time.seconds, 5);
  EXPECT_DOUBLE_EQ(drill.screen.time.used, 0.2) << "ten characters have 25 seconds";
  drill.pass(19);
  EXPECT_TRUE(drill.speaker.said.isEmpty());
  drill.pass(1);
  EXPECT_DOUBLE_EQ(drill.screen.time.used, 1.0);
  drill.pass(30);
  EXPECT_EQ(drill.speaker.said, QStringList{u"Time is up."_s}) << "once";
  for (const int sound : {1, 0}) {
    drill.press("3");
    drill.loop->chooseTimeUpSound(sound);
    drill.pass(11);
    EXPECT_FALSE(drill.loop->attempt().timeOver) << "a word of three letters has 11.5 seconds";
    drill.pass(1);
    EXPECT_TRUE(drill.loop->attempt().timeOver) << "without a sound too";
    EXPECT_EQ(drill.speaker.beeps, 1);
    drill.press("4");
  }
}

TEST(PracticeLoopTest, TakesRestFromAMinuteOn) {
  Drill drill({word(u'0', u'0'), word(u'0', u'0')});
  drill.start();
  EXPECT_EQ(drill.screen.panels.value(4), u"開始時刻　09:00"_s);
  for (const auto& [gap, total] : {std::pair(59, 0), std::pair(60, 60), std::pair(125, 185)}) {
    drill.clock.time = drill.clock.time.addSecs(gap);
    drill.press("w");
    EXPECT_EQ(drill.times.休憩時間, total);
  }
  EXPECT_EQ(drill.screen.panels.value(5), u"休憩時間  3分"_s);
  EXPECT_EQ(drill.screen.panels.value(6), u"経過時間  4分"_s);
  drill.clock.time = drill.clock.time.addSecs(26);
  drill.press("w");
  EXPECT_EQ(drill.screen.panels.value(6), u"経過時間  5分"_s) << "rounded";
}

TEST(PracticeLoopTest, AnHourInFrontOfABoxIsRestAndTheSecondsBeforeItAreWork) {
  using Press = void (PracticeLoop::*)();
  for (const Press press :
       {&PracticeLoop::requestExit, &PracticeLoop::requestLessonChange, &PracticeLoop::requestPrint,
        &PracticeLoop::reshuffle, &PracticeLoop::nextItem}) {
    Drill drill({word(u'0', u'0')});
    drill.start();
    drill.dialogs.answers = {false, false};
    drill.dialogs.whileOpen = [&] { drill.clock.time = drill.clock.time.addSecs(3600); };
    drill.clock.time = drill.clock.time.addSecs(10);
    ((*drill.loop).*press)();
    const auto boxes = static_cast<int>(drill.dialogs.asked.size() + drill.dialogs.shown.size());
    EXPECT_EQ(drill.times.休憩時間, 3600 * boxes);
    EXPECT_GE(boxes, 1);
  }
}

TEST(PracticeLoopTest, AnyKeyEmptiesTheMessageAndOneOfTheFirstStopsTheVoice) {
  Drill drill({word(u'0', u'0'), word(u'1', u'1')});
  drill.conditions.firstRepeatWord = 3;
  drill.start();
  for (const char* leave : {"3", "4"}) {
    drill.press("wr");
    EXPECT_FALSE(drill.screen.message.isEmpty());
    drill.press(leave);
    EXPECT_TRUE(drill.screen.message.isEmpty());
    drill.press("4");
  }
  const auto stops = [&] {
    std::vector<int> keys;
    for (int key = 1; key <= 4; ++key) {
      const int before = drill.speaker.stopped;
      drill.loop->keyPressed();
      if (drill.speaker.stopped > before) keys.push_back(key);
    }
    return keys;
  };
  drill.press("34");
  EXPECT_EQ(stops(), std::vector{2}) << "the first key of an answer is typed while it speaks";
  drill.press("3");
  EXPECT_EQ(stops(), std::vector{1}) << "in a mini test";
}

/// Anything may be pressed at any time.
TEST(PracticeLoopTest, RandomKeysNeverLoseTheWay) {
  const unsigned seed = test::randomSeed();
  SCOPED_TRACE(testing::Message() << "seed " << seed);
  std::mt19937 random(seed);
  const auto upTo = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  const std::string keys = "rrrrweee1234KcTx";
  for (int round = 0; round < 100; ++round) {
    QStringList records;
    for (int i = 0; i < 2 + upTo(5); ++i) {
      const QChar a(u'0' + upTo(3));
      const QChar b(u'0' + upTo(3));
      records.append(upTo(2) == 0 ? sentence(a, b) : word(a, b));
    }
    Drill drill(records);
    drill.conditions.memorySelect = codeAt<MemorySelect>(upTo(6));
    drill.start();
    const PracticeLoop& loop = *drill.loop;
    for (int step = 0; step < 1000; ++step) {
      const char key = keys[static_cast<size_t>(upTo(static_cast<int>(keys.size())))];
      const int finished = drill.finished();
      const bool asking = !loop.確認中();
      const int POS = loop.POS();
      const int POS1 = loop.POS1();
      const MemoryState before = loop.state().shown.record().記(POS1);
      drill.press(key);
      ASSERT_EQ(drill.dialogs.shown, QStringList());
      ASSERT_FALSE(loop.exitConfirmed());
      const MemoryState after = drill.stored(POS).記(POS1);
      ASSERT_TRUE(indexOf(after) - indexOf(before) <= 1) << "a state climbs one step at a time";
      ASSERT_TRUE(after >= before || (after == MemoryState::全然 && loop.POS1() == POS1))
          << "and a fall asks the same again";
      const CurrentRecord& record = loop.state().shown.record();
      if (loop.確認中()) {
        ASSERT_FALSE(loop.clockRunning());
        ASSERT_TRUE(drill.screen.awaited);
      } else {
        // What will be judged is what is on the screen.
        ASSERT_TRUE(record.has(loop.POS1()));
        ASSERT_TRUE(memoryAdmitted(drill.conditions.memorySelect, record.記(loop.POS1())) ||
                    record.記(loop.POS1()) == MemoryState::全然);
        ASSERT_EQ(drill.screen.question,
                  record.sentence ? record.問題文 : record.text(loop.POS1()));
        ASSERT_EQ(drill.stored(loop.POS()).記(loop.POS1()), record.記(loop.POS1()));
        ASSERT_TRUE(!loop.clockRunning() || record.記(loop.POS1()) == MemoryState::全然);
      }
      // An item is counted when its full answer comes up after it was asked, and only then.
      ASSERT_EQ(drill.finished() - finished, asking && loop.確認中() &&
                                                     loop.state().shown.wordShownCount() > 0 &&
                                                     key != '3' && key != '4'
                                                 ? 1
                                                 : 0)
          << "key " << key;
    }
  }
}

}  // namespace
}  // namespace tavoli
