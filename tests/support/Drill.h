#pragma once

#include <memory>

#include "data/Text.h"
#include "practice/PracticeLoop.h"
#include "tests/support/Fakes.h"
#include "tests/support/RecordingScreen.h"

namespace tavoli::test {

/// A run over given packed records, driven by the keys of the practice. A record whose first
/// character is 問 is a sentence, any other the word "big". All memory states are asked, and
/// nothing is reviewed, unless told otherwise.
class Drill {
 public:
  explicit Drill(const QStringList& records) {
    conditions.memorySelect = u'5';
    conditions.reviewCycle = 0;
    for (const QString& record : records) {
      PracticeItem item;
      const bool isSentence = record.startsWith(u'問');
      item.itemEnglish = isSentence ? digits(10 * (set.itemCount() + 1), 6) : QStringLiteral("big");
      item.itemTable = isSentence ? tableOfSentences : QChar(u'1');
      item.itemRecord = record;
      set.append(item);
    }
  }

  void start() {
    loop = std::make_unique<PracticeLoop>(
        set, course, conditions, times,
        LoopServices{screen, review, dialogs, random, clock, speaker});
    loop->start(2);
  }

  void enter(const QString& typed) const { loop->enter(typed); }
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
