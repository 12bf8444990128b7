#pragma once

#include <memory>

#include "data/Text.h"
#include "practice/PracticeLoop.h"
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
    item.itemTable = isSentence ? tableOfSentences : QChar(u'1');
    item.itemRecord = record;
    set.append(item);
  }
  return set;
}

/// What a key types where `right` is asked: r itself, v with a contraction, o without "so ", t a
/// tolerated word, m without its mark, q with a wrong one, w something wrong, any other nothing.
inline QString typedBy(char key, QString right, bool isSentence) {
  switch (key) {
    case 'r':
      return right;
    case 'v':
      return right.replace(u"I am "_s, u"I'm "_s);
    case 'o':
      return right.remove(u"so "_s);
    case 't':
      return isSentence ? right.replace(u"big"_s, u"huge"_s) : u"large"_s;
    case 'm':
      return right.left(right.size() - 1);
    case 'q':
      return right.left(right.size() - 1) + u'?';
    case 'w':
      return u"nonsense"_s;
    default:
      return {};
  }
}

/// A run over given packed records, driven by the keys of the practice. All memory states are
/// asked, and nothing is reviewed, unless told otherwise.
class Drill {
 public:
  explicit Drill(const QStringList& records) : set(setOf(records)) {
    conditions.memorySelect = u'5';
    conditions.reviewCycle = 0;
  }

  void start() {
    loop = std::make_unique<PracticeLoop>(
        set, course, conditions, times,
        LoopServices{screen, review, dialogs, random, clock, speaker});
    loop->start(2);
  }

  void enter(const QString& typed) const { loop->enter(typed); }
  void pass(int seconds) {
    clock.time = clock.time.addSecs(seconds);
    loop->tick();
  }
  /// Presses keys one after the other: 1 2 3 4 F1 to F4, K F11, c a click into the answer box, T
  /// nearly a minute passes, x F6 and No; any other as `typedBy` says.
  void press(const char* keys) {
    for (; *keys != '\0'; ++keys) {
      switch (*keys) {
        case '1':
          loop->showAnswer();
          break;
        case '2':
          loop->nextSubQuestion();
          break;
        case '3':
          loop->nextItem();
          break;
        case '4':
          loop->previousItem();
          break;
        case 'K':
          loop->markKnown(false);
          break;
        case 'c':
          loop->answerBoxClicked(screen.answer);
          break;
        case 'T':
          pass(59);
          break;
        case 'x':
          dialogs.answers = {false};
          loop->requestExit();
          break;
        default: {
          const CurrentRecord& record = loop->state().record;
          const QString right = record.sentence ? record.text(loop->POS1()) : record.英語;
          enter(typedBy(*keys, right, record.sentence));
        }
      }
    }
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
};

}  // namespace tavoli::test
