// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QTextEdit>

#include <benchmark/benchmark.h>

#include "practice/PracticeLoop.h"
#include "practice/screens/TAVO3.h"
#include "tests/support/Fakes.h"
#include "tests/support/RecordingScreen.h"
#include "tests/support/TestStore.h"

namespace tavoli {
namespace {

constexpr int itemCount = 25000;

PracticeSet bigSet() {
  PracticeSet set;
  for (int i = 0; i < itemCount; ++i) {
    PracticeItem item;
    item.itemEnglish = QStringLiteral("word");
    item.itemTable = TableCode::first;
    item.itemRecord =
        test::wordRecord({QStringLiteral("[意味]を答えなさい")}, {QStringLiteral("synonym")});
    set.append(item);
  }
  return set;
}

/// From the right answer's Enter to the next question drawn, in the real window: the full answer,
/// and Enter once more.
void keyToNextQuestion(benchmark::State& state) {
  PracticeSet set = bigSet();
  const CourseChoice course;
  PracticeConditions conditions;
  conditions.memorySelect = MemorySelect::すべて;
  conditions.firstRepeatWord = 1;
  conditions.reviewCycle = 0;
  test::ScriptedDialogs dialogs;
  test::FakeRandom random;
  test::FakeClock clock;
  SilentSpeaker speaker;
  RunClock times;
  TAVO3 window;
  window.resize(1024, 768);
  test::RecordingReview review;
  PracticeLoop loop(set, course, conditions, times,
                    {window, review, dialogs, random, clock, speaker});
  window.connectTo(loop, clock);
  loop.start(2);
  window.show();
  QApplication::processEvents();
  for (auto _ : state) {
    loop.enter(QStringLiteral("word"));
    loop.enter(QString());
    QApplication::processEvents();
  }
}
BENCHMARK(keyToNextQuestion)->Unit(benchmark::kMillisecond);

/// Six text areas and labels of such a window, set and drawn twice.
void keyToNextQuestionBare(benchmark::State& state) {
  QWidget window;
  window.resize(1024, 768);
  QList<QTextEdit*> areas;
  for (int i = 0; i < 3; ++i) {
    areas.append(new QTextEdit(&window));
    areas.last()->setGeometry(10, 10 + 250 * i, 1000, 240);
  }
  window.show();
  QApplication::processEvents();
  int n = 0;
  for (auto _ : state) {
    for (int step = 0; step < 2; ++step)
      for (QTextEdit* area : areas)
        area->setPlainText(QStringLiteral("意味を答えなさい %1").arg(++n));
    QApplication::processEvents();
  }
}
BENCHMARK(keyToNextQuestionBare)->Name("keyToNextQuestion/bare")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavoli
