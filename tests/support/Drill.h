#pragma once

#include <memory>
#include <numeric>

#include "data/Text.h"
#include "practice/PracticeLoop.h"
#include "practice/VerdictText.h"
#include "tests/support/Fakes.h"
#include "tests/support/RecordingScreen.h"

namespace tavoli::test {

using namespace Qt::StringLiterals;

/// The packed records as a list of items: one that begins with its synonyms is the word "big", any
/// other a sentence.
inline PracticeSet setOf(const QStringList& records) {
  PracticeSet set;
  for (const QString& record : records) {
    PracticeItem item;
    const bool isSentence = !record.startsWith(u'|');
    item.itemEnglish = isSentence ? digits(10 * (set.itemCount() + 1), 6) : u"big"_s;
    item.itemTable = isSentence ? TableCode::sentences : TableCode::first;
    item.itemRecord = record;
    set.append(item);
  }
  return set;
}

/// What a key types where `right` is asked: r itself, v with a contraction, o without "so ", t a
/// tolerated word, m without its mark, q with a wrong one, w something wrong, any other nothing.
inline QString typedBy(char key, QString right, bool isSentence) {
  if (key == 'r') return right;
  if (key == 'v') return right.replace(u"I am "_s, u"I'm "_s);
  if (key == 'o') return right.remove(u"so "_s);
  if (key == 't') return isSentence ? right.replace(u"big"_s, u"huge"_s) : u"large"_s;
  if (key == 'm') return right.left(right.size() - 1);
  if (key == 'q') return right.left(right.size() - 1) + u'?';
  return key == 'w' ? u"nonsense"_s : QString();
}

/// A run over given packed records, driven by the keys of the practice. All memory states are
/// asked, and nothing is reviewed, unless told otherwise.
class Drill {
 public:
  explicit Drill(const QStringList& records) : set(setOf(records)) {
    conditions.memorySelect = MemorySelect::すべて;
    conditions.reviewCycle = 0;
  }

  void start() {
    loop = std::make_unique<PracticeLoop>(
        set, course, conditions, times,
        LoopServices{screen, review, dialogs, random, clock, speaker});
    loop->start(2);
  }

  /// Starts, and reviews all items at once.
  void startReview() {
    start();
    std::vector<int> all(set.rowCount());
    std::iota(all.begin(), all.end(), 1);
    loop->startReview(all);
  }

  void enter(const QString& typed) const { loop->enter(typed); }
  void pass(int seconds) {
    clock.time = clock.time.addSecs(seconds);
    if (loop->復習中())
      loop->review().tick();
    else
      loop->tick();
  }
  /// Presses keys one after the other: 1 2 3 4 F1 to F4, K F11, c a click into the answer box, T
  /// nearly a minute passes, x F6 and No; any other as `typedBy` says. A review knows 1 and K.
  void press(const char* keys) {
    for (; *keys != '\0'; ++keys) press(*keys);
  }
  void press(char key) {
    if (loop->復習中()) return pressInReview(key);
    if (key == '1') return loop->showAnswer();
    if (key == '2') return loop->nextSubQuestion();
    if (key == '3') return loop->nextItem();
    if (key == '4') return loop->previousItem();
    if (key == 'K') return loop->markKnown(Pressed::Key);
    if (key == 'c') return loop->answerBoxClicked(screen.answer);
    if (key == 'T') return pass(59);
    if (key == 'x') {
      dialogs.answers = {false};
      return loop->requestExit();
    }
    const CurrentRecord& record = loop->state().shown.record();
    enter(typedBy(key, answerOf(record, loop->POS1()), record.sentence));
  }
  CurrentRecord stored(int i = 1) const { return set.parsed(i); }
  /// How many items have been counted as finished.
  int finished() const {
    int sum = 0;
    for (size_t i = 0; i < 3; ++i)
      sum += loop->report().counts().run.words[i] + loop->report().counts().run.sentences[i];
    return sum;
  }

  PracticeSet set;
  CourseChoice course;
  PracticeConditions conditions;
  RecordingScreen screen;
  RecordingReview review;
  ScriptedDialogs dialogs;
  FakeRandom random;
  FakeClock clock;
  RecordingSpeaker speaker;
  RunClock times;
  std::unique_ptr<PracticeLoop> loop;

 private:
  void pressInReview(char key) const {
    ReviewDrill& asked = loop->review();
    if (key == '1') return asked.showAnswer();
    if (key == 'K') return asked.nextReviewItem();
    const CurrentRecord& record = asked.record();
    asked.enter(typedBy(key, answerOf(record, asked.reviewPOS1()), record.sentence));
  }
};

}  // namespace tavoli::test
