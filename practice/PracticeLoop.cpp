// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/PracticeLoop.h"

#include <utility>

#include "practice/PracticeScreen.h"
#include "practice/VerdictText.h"
#include "system/Dialogs.h"
#include "system/Random.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

QString captionOf(const PracticeConditions& conditions) {
  if (conditions.usesLesson()) return conditions.lessonFile;
  const QString kind = conditions.usesWords() ? u"単語熟語　"_s : u"例文　"_s;
  return kind + (conditions.isRandom() ? u"ランダムに"_s : u"順に"_s);
}

}  // namespace

PracticeLoop::PracticeLoop(PracticeSet& set, const CourseChoice& course,
                           const PracticeConditions& conditions, RunClock& times,
                           const LoopServices& services)
    : m_state{set, course, conditions,
              comparisonSettings(conditions.compareMode, conditions.compareFlag), ShownItem(set)},
      m_screen(services.screen),
      m_restTime(times, services.clock, services.screen),
      m_dialogs(services.dialogs, m_restTime),
      m_random(services.random),
      m_voice(services.speaker),
      m_damage(m_state, m_dialogs),
      m_flow(m_state, services.screen, m_dialogs, m_damage),
      m_answerClock(services.clock, services.screen, services.speaker),
      m_report(services.progress),
      m_reviewRing(conditions.reviewCycle),
      m_review(m_state,
               {services.reviewScreen, m_dialogs, services.clock, services.speaker, m_restTime,
                [this] {
                  m_phase = Phase::asking;
                  advance();
                },
                [this] { exitAtOnce(); }}) {}

void PracticeLoop::start(int timeUpSound) {
  m_restTime.begin();
  const PracticeConditions& conditions = m_state.conditions;
  m_screen.showCaption(captionOf(conditions));
  m_screen.showStatus(StatusPanel::Review, conditions.reviewCycle == 0
                                               ? u"復習なし"_s
                                               : u"復習は%1問ごとに"_s.arg(conditions.reviewCycle));
  chooseComparison(comparisonChoiceOf(m_state.comparison));
  chooseTimeUpSound(timeUpSound);
  m_screen.showStatus(StatusPanel::Order, conditions.isRandom() ? u"ランダム出題 "_s : QString());
  m_screen.showCounts(m_report.counts());
  goToItem(m_state.set.startIndex);
}

bool PracticeLoop::dispPOS1(int POS) {
  const int itemCount = m_state.set.itemCount();
  ShownItem& shown = m_state.shown;
  shown.moveTo(POS);
  if (POS > itemCount) {
    if (!m_dialogs.ask(u"最後まで終了しました。最初から再開しますか。"_s) &&
        m_dialogs.ask(u"終了しますか？"_s)) {
      exitAtOnce();
      return false;
    }
    shown.moveTo(m_state.set.startIndex);
  }
  shown.show();
  m_flow.beginItem();
  const PracticeItem& item = shown.item();
  const QString position = u"位置=%1／%2"_s.arg(shown.POS()).arg(itemCount);
  m_screen.showStatus(StatusPanel::Position,
                      item.isSentence() ? position + u' ' + item.itemEnglish : position);
  return true;
}

void PracticeLoop::goToItem(int POS) {
  if (dispPOS1(POS)) advance();
}

void PracticeLoop::advance() {
  if (m_state.shown.fnNextExist(m_state.conditions.memorySelect)) {
    dispQuestion();
  } else if (m_flow.attempt().FK次小問) {
    // Left by F2 at its last 小問: neither shown nor counted.
    nextQuestion();
  } else {
    // An item of which nothing was asked is only shown, and what the last one left goes away.
    if (m_state.shown.wordShownCount() > 0) {
      回数カウント();
      showSubQuestion();
    } else {
      emptyQuestion();
    }
    m_damage.guardEmptyRecord(m_FK前問題);
    dispAnswerFull();
  }
}

void PracticeLoop::stay() {
  m_screen.focusAnswer();
}

void PracticeLoop::after(AnswerFlow::After result) {
  if (result == AnswerFlow::After::Advance)
    advance();
  else
    stay();
}

double PracticeLoop::targetSeconds() const {
  const PracticeConditions& c = m_state.conditions;
  const CurrentRecord& record = m_state.shown.record();
  const auto length = static_cast<double>(answerOf(record, POS1()).size());
  return record.sentence ? c.targetSentA * length + c.targetSentB
                         : c.targetWordA * length + c.targetWordB;
}

void PracticeLoop::activity() {
  m_restTime.takeRestTime();
}

void PracticeLoop::nextQuestion() {
  m_FK前問題 = false;
  goToItem(POS() + 1);
}

void PracticeLoop::dispQuestion() {
  ShownItem& shown = m_state.shown;
  shown.ask();
  m_flow.beginSubQuestion();
  m_FK前問題 = false;
  m_voice.beginSubQuestion();
  const PracticeItem& item = shown.item();
  const CurrentRecord& record = shown.record();
  const SubQuestion& s = shown.小問();
  m_screen.showSource(sourceLabel(record, item.itemEnglish, item.itemTable, m_state.course.COURSE));
  m_question = m_damage.marked(record.sentence ? record.問題文 : s.日本語);
  m_screen.showQuestion(m_question);
  showSubQuestion();
  m_screen.showStatus(StatusPanel::Times,
                      u"練習回数 = %1"_s.arg(record.sentence ? item.itemTimes : s.小問回数));
  // The message about the last 小問, perhaps with its answer, is not to help with this one.
  m_screen.showFullAnswer(MarkedText());
  m_screen.setAnswer(answerStart(record, POS1()));
  m_flow.ShowMiniTestNotice();
  // A mini test has no time limit.
  if (shown.inMiniTest())
    m_answerClock.clear();
  else
    m_answerClock.startAnswerTimer(targetSeconds());
  m_screen.focusAnswer();
}

void PracticeLoop::showSubQuestion() {
  m_screen.showSubQuestion(
      questionView(m_question, m_state.shown.record(), POS1(), m_state.shown.answered()));
}

void PracticeLoop::dispAnswerFull() {
  m_phase = Phase::confirming;
  for (const FunctionKey key :
       {FunctionKey::F1, FunctionKey::F2, FunctionKey::F3, FunctionKey::F11})
    m_screen.enableKey(key, false);
  m_answerClock.clear();
  m_screen.showMiniTest(MarkedText());
  m_screen.setAnswer(QString());
  m_screen.showFullAnswer(m_damage.marked(fullAnswerText(m_state.shown.record())));
  m_screen.awaitConfirmation(true);
  m_voice.sayItem(m_state.shown);
}

void PracticeLoop::leaveConfirmation() {
  if (!確認中()) return;
  m_phase = Phase::asking;
  for (const FunctionKey key :
       {FunctionKey::F1, FunctionKey::F2, FunctionKey::F3, FunctionKey::F11})
    m_screen.enableKey(key, true);
  m_screen.awaitConfirmation(false);
}

void PracticeLoop::leaveFullAnswer() {
  const bool 復習する = m_flow.attempt().復習する;
  const int reviewSlot = POS();
  leaveConfirmation();
  m_FK前問題 = false;
  if (!dispPOS1(POS() + 1)) return;
  std::vector<int> due = 復習する ? m_reviewRing.reviewCheck(reviewSlot) : std::vector<int>();
  // The next item is not shown before the review is over.
  if (due.empty())
    advance();
  else
    startReview(std::move(due));
}

void PracticeLoop::startReview(std::vector<int> items) {
  m_phase = Phase::reviewing;
  m_review.startReview(std::move(items));
}

void PracticeLoop::emptyQuestion() {
  m_screen.showSource(QString());
  m_screen.showQuestion(MarkedText());
  m_screen.showSubQuestion(QuestionView());
  m_screen.showStatus(StatusPanel::Times, QString());
}

void PracticeLoop::emptyAreas() {
  m_screen.showFullAnswer(MarkedText());
  m_screen.showMessage(MarkedText());
}

void PracticeLoop::keyPressed() {
  m_screen.showMessage(MarkedText());
  keysTyped(1);
}

void PracticeLoop::keysTyped(int keys) {
  m_voice.keysPressed(keys, m_state.shown.inMiniTest());
}

void PracticeLoop::enter(const QString& typed) {
  activity();
  emptyAreas();
  if (確認中()) {
    leaveFullAnswer();
    return;
  }
  const int tried = m_flow.attempt().tryCount;
  const AnswerFlow::After result = m_flow.enter(typed);
  if (m_flow.attempt().tryCount != tried) m_answerClock.stop();
  after(result);
}

void PracticeLoop::answerBoxClicked(const QString& typed) {
  if (確認中()) {
    enter(QString());
    return;
  }
  const ShownItem& shown = m_state.shown;
  if (!shown.record().sentence || typed != answerStart(shown.record(), POS1())) return;
  m_screen.showMessage(MarkedText());
  if (!shown.inMiniTest()) m_answerClock.resume(targetSeconds());
}

void PracticeLoop::showAnswer() {
  activity();
  if (確認中()) return;
  m_flow.showAnswer();
  if (m_flow.attempt().answerShown) m_voice.sayAnswer(m_state.shown);
  stay();
}

void PracticeLoop::nextSubQuestion() {
  activity();
  if (確認中()) return;
  emptyAreas();
  m_flow.skip();
  advance();
}

void PracticeLoop::nextItem() {
  activity();
  if (確認中()) return;
  emptyAreas();
  nextQuestion();
}

void PracticeLoop::previousItem() {
  activity();
  leaveConfirmation();
  emptyAreas();
  m_FK前問題 = true;
  goToItem(POS() > 1 ? POS() - 1 : m_state.set.itemCount());
}

void PracticeLoop::markKnown(Pressed pressed) {
  activity();
  if (確認中()) return;
  m_answerClock.stop();
  after(m_flow.KnownKey(pressed));
}

void PracticeLoop::requestPrint() {
  m_dialogs.show(m_printRequests.request(m_state.shown.item()));
  m_screen.showMessage(MarkedText());
  if (!確認中()) stay();
}

void PracticeLoop::tick() {
  if (!m_answerClock.running()) return;
  m_answerClock.tick(m_state.timeUpSound);
  m_flow.takeTime(m_answerClock.timeOver());
}

void PracticeLoop::toggleLog() {
  activity();
  m_logShown = !m_logShown;
  m_screen.showLog(m_report.runLog(), m_logShown);
}

void PracticeLoop::chooseTimeUpSound(int choice) {
  activity();
  m_state.timeUpSound = choice;
  m_screen.showTimeUpSound(choice);
}

void PracticeLoop::chooseRepeats(const PracticeConditions& chosen) {
  PracticeConditions& c = m_state.conditions;
  c.firstRepeatWord = chosen.firstRepeatWord;
  c.firstRepeatSent = chosen.firstRepeatSent;
  c.requiredRepeatWord = chosen.requiredRepeatWord;
  c.requiredRepeatSent = chosen.requiredRepeatSent;
}

void PracticeLoop::chooseComparison(int choice) {
  activity();
  const ComparisonChoice& chosen = comparisonChoices()[static_cast<size_t>(choice)];
  m_state.comparison = chosen.settings;
  m_state.conditions.compareMode = chosen.settings.compareMode;
  m_state.conditions.compareFlag = chosen.settings.compareFlag;
  m_screen.showComparison(choice);
  m_screen.showStatus(StatusPanel::Comparison, chosen.status);
}

void PracticeLoop::nextComparison() {
  const auto choices = static_cast<int>(comparisonChoices().size());
  chooseComparison((comparisonChoiceOf(m_state.comparison) + 1) % choices);
}

void PracticeLoop::reshuffle() {
  const bool wanted = m_dialogs.ask(u"問題の出題を順不同にしますか？"_s);
  m_random.reseed();
  if (!wanted) return;
  m_screen.showStatus(StatusPanel::Order, u"順不同出題"_s);
  if (m_state.set.startIndex == m_state.set.itemCount()) return;
  m_state.set.reshuffle(m_random);
  m_reviewRing.clear();
  leaveConfirmation();
  emptyAreas();
  goToItem(m_state.set.startIndex);
}

void PracticeLoop::回数カウント() {
  m_state.shown.countItem();
  m_report.finish(m_state);
  m_screen.showCounts(m_report.counts());
  m_screen.showLog(m_report.runLog(), m_logShown);
}

void PracticeLoop::requestExit() {
  if (m_dialogs.ask(u"終了しますか？"_s))
    exitAtOnce();
  else
    exitRefused();
}

void PracticeLoop::requestLessonChange() {
  if (m_dialogs.ask(u"このレッスンファイルを終了して別のレッスンファイルに変更しますか"_s)) {
    m_backToConditions = true;
    exitAtOnce();
  } else {
    exitRefused();
  }
}

void PracticeLoop::exitRefused() {
  if (確認中())
    enter(QString());
  else
    stay();
}

void PracticeLoop::exitAtOnce() {
  if (m_phase == Phase::ended) return;
  m_phase = Phase::ended;
  m_answerClock.stop();
  m_review.stop();
  m_screen.close();
}

}  // namespace tavoli
