#include "practice/PracticeLoop.h"

#include <algorithm>

#include "practice/PracticeScreen.h"
#include "practice/VerdictText.h"
#include "speech/Speaker.h"
#include "system/Dialogs.h"
#include "system/Random.h"

namespace tavoli {

namespace {

constexpr int maxTimes = 99;

QString captionOf(const PracticeConditions& conditions) {
  if (conditions.usesLesson()) return conditions.lessonFile;
  const QString kind =
      conditions.usesWords() ? QStringLiteral("単語熟語　") : QStringLiteral("例文　");
  return kind + (conditions.isRandom() ? QStringLiteral("ランダムに") : QStringLiteral("順に"));
}

}  // namespace

PracticeLoop::PracticeLoop(PracticeSet& set, const CourseChoice& course,
                           PracticeConditions& conditions, RunClock& times,
                           const LoopServices& services)
    : m_state{set, course, conditions,
              comparisonSettings(conditions.compareMode, conditions.compareFlag)},
      m_screen(services.screen),
      m_restTime(times, services.clock, services.screen),
      m_dialogs(services.dialogs, m_restTime),
      m_random(services.random),
      m_speaker(services.speaker),
      m_damage(m_state, m_dialogs),
      m_flow(m_state, services.screen, m_dialogs, m_damage),
      m_answerClock(services.clock, services.screen, services.speaker),
      m_report(services.progress),
      m_reviewRing(conditions.reviewCycle),
      m_review(m_state, {services.reviewScreen, m_dialogs, services.clock, services.speaker,
                         m_restTime, [this] { advance(); }, [this] { exitAtOnce(); }}) {}

void PracticeLoop::start(int timeUpSound) {
  m_restTime.begin();
  const PracticeConditions& conditions = m_state.conditions;
  m_screen.showCaption(captionOf(conditions));
  m_screen.showStatus(StatusPanel::Review,
                      conditions.reviewCycle == 0
                          ? QStringLiteral("復習なし")
                          : QStringLiteral("復習は%1問ごとに").arg(conditions.reviewCycle));
  chooseComparison(comparisonChoiceOf(m_state.comparison));
  chooseTimeUpSound(timeUpSound);
  m_screen.showStatus(StatusPanel::Order,
                      conditions.isRandom() ? QStringLiteral("ランダム出題 ") : QString());
  m_screen.showCounts(m_report.counts());
  m_state.POS = m_state.set.startIndex;
  goToItem();
}

bool PracticeLoop::dispPOS1() {
  const int itemCount = m_state.set.itemCount();
  if (m_state.POS > itemCount) {
    if (!m_dialogs.ask(QStringLiteral("最後まで終了しました。最初から再開しますか。")) &&
        m_dialogs.ask(QStringLiteral("終了しますか？"))) {
      exitAtOnce();
      return false;
    }
    m_state.POS = m_state.set.startIndex;
  }
  PracticeItem& item = m_state.item();
  m_state.POS1 = 1;
  m_state.wordShownCount = 0;
  m_state.answered.reset();
  m_state.復習する = false;
  m_state.FK次小問 = false;
  m_state.repeatsLeft =
      item.isSentence() ? m_state.conditions.firstRepeatSent : m_state.conditions.firstRepeatWord;
  item.itemDirty = true;
  m_state.record = m_state.set.parsed(m_state.POS);
  const QString position = QStringLiteral("位置=%1／%2").arg(m_state.POS).arg(itemCount);
  m_screen.showStatus(StatusPanel::Position,
                      item.isSentence() ? position + u' ' + item.itemEnglish : position);
  return true;
}

void PracticeLoop::goToItem() {
  if (dispPOS1()) advance();
}

bool PracticeLoop::fnNextExist() {
  int& POS1 = m_state.POS1;
  while (m_state.record.has(POS1) &&
         !memoryAdmitted(m_state.conditions.memorySelect, m_state.record.記(POS1)))
    ++POS1;
  return m_state.record.has(POS1);
}

void PracticeLoop::advance() {
  if (fnNextExist()) {
    dispQuestion();
  } else if (m_state.FK次小問) {
    // Left by F2 at its last 小問: neither shown nor counted.
    nextQuestion();
  } else {
    // An item of which nothing was asked is only shown, and what the last one left goes away.
    if (m_state.wordShownCount > 0) {
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
  const auto length = static_cast<double>(answerOf(m_state.record, m_state.POS1).size());
  return m_state.record.sentence ? c.targetSentA * length + c.targetSentB
                                 : c.targetWordA * length + c.targetWordB;
}

void PracticeLoop::activity() {
  m_restTime.takeRestTime();
}

void PracticeLoop::nextQuestion() {
  ++m_state.POS;
  m_FK前問題 = false;
  goToItem();
}

void PracticeLoop::dispQuestion() {
  ++m_state.wordShownCount;
  m_state.tryCount = 0;
  m_state.answerShown = false;
  m_state.timeOver = false;
  m_state.FK次小問 = false;
  m_FK前問題 = false;
  m_state.speechKeyCount = 0;
  const PracticeItem& item = m_state.item();
  const CurrentRecord& record = m_state.record;
  const SubQuestion& s = m_state.小問();
  m_screen.showSource(sourceLabel(record, item.itemEnglish, item.itemTable, m_state.course.COURSE));
  m_question = m_damage.marked(record.sentence ? record.問題文 : s.日本語);
  m_screen.showQuestion(m_question);
  showSubQuestion();
  m_screen.showStatus(
      StatusPanel::Times,
      QStringLiteral("練習回数 = %1").arg(record.sentence ? item.itemTimes : s.小問回数));
  // What was told of the last 小問, its answer perhaps, is not to help with this one.
  m_screen.showFullAnswer(MarkedText());
  m_screen.setAnswer(answerStart(record, m_state.POS1));
  m_flow.ShowMiniTestNotice();
  // A mini test has no time limit.
  if (m_state.inMiniTest())
    m_answerClock.clear();
  else
    m_answerClock.startAnswerTimer(targetSeconds());
  m_screen.focusAnswer();
}

void PracticeLoop::showSubQuestion() {
  m_screen.showSubQuestion(
      questionView(m_question, m_state.record, m_state.POS1, m_state.answered));
}

void PracticeLoop::dispAnswerFull() {
  m_確認中 = true;
  for (const FunctionKey key :
       {FunctionKey::F1, FunctionKey::F2, FunctionKey::F3, FunctionKey::F11})
    m_screen.enableKey(key, false);
  m_answerClock.clear();
  m_screen.showMiniTest(MarkedText());
  m_screen.setAnswer(QString());
  m_screen.showFullAnswer(m_damage.marked(fullAnswerText(m_state.record)));
  m_speaker.say(spokenAnswer());
  m_screen.awaitConfirmation(true);
}

QString PracticeLoop::spokenAnswer() const {
  if (!m_state.record.sentence) return m_state.record.英語;
  return sentenceAnswerLines(m_state.record).join(u' ');
}

void PracticeLoop::leaveConfirmation() {
  if (!m_確認中) return;
  m_確認中 = false;
  for (const FunctionKey key :
       {FunctionKey::F1, FunctionKey::F2, FunctionKey::F3, FunctionKey::F11})
    m_screen.enableKey(key, true);
  m_screen.awaitConfirmation(false);
}

void PracticeLoop::leaveFullAnswer() {
  const bool 復習する = m_state.復習する;
  const int reviewSlot = m_state.POS;
  leaveConfirmation();
  ++m_state.POS;
  m_FK前問題 = false;
  if (!dispPOS1()) return;
  const std::vector<int> due = 復習する ? m_reviewRing.reviewCheck(reviewSlot) : std::vector<int>();
  // The next item is not shown before the review is over.
  if (due.empty())
    advance();
  else
    m_review.startReview(due);
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
  ++m_state.speechKeyCount;
  const int stopAt = m_state.inMiniTest() ? 1 : 2;
  if (m_state.speechKeyCount == stopAt) m_speaker.stop();
}

void PracticeLoop::enter(const QString& typed) {
  activity();
  emptyAreas();
  if (m_確認中) {
    leaveFullAnswer();
    return;
  }
  const int tried = m_state.tryCount;
  const AnswerFlow::After result = m_flow.enter(typed);
  if (m_state.tryCount != tried) m_answerClock.stop();
  after(result);
}

void PracticeLoop::answerBoxClicked(const QString& typed) {
  if (m_確認中) {
    enter(QString());
    return;
  }
  if (!m_state.record.sentence || typed != answerStart(m_state.record, m_state.POS1)) return;
  m_screen.showMessage(MarkedText());
  if (!m_state.inMiniTest()) m_answerClock.resume(targetSeconds());
}

void PracticeLoop::showAnswer() {
  activity();
  if (m_確認中) return;
  m_flow.showAnswer();
  if (m_state.answerShown) m_speaker.say(spokenAnswer());
  stay();
}

void PracticeLoop::nextSubQuestion() {
  activity();
  if (m_確認中) return;
  emptyAreas();
  ++m_state.POS1;
  m_state.FK次小問 = true;
  advance();
}

void PracticeLoop::nextItem() {
  activity();
  if (m_確認中) return;
  emptyAreas();
  nextQuestion();
}

void PracticeLoop::previousItem() {
  activity();
  leaveConfirmation();
  emptyAreas();
  m_state.POS = m_state.POS > 1 ? m_state.POS - 1 : m_state.set.itemCount();
  m_FK前問題 = true;
  goToItem();
}

void PracticeLoop::markKnown(bool byButton) {
  activity();
  if (m_確認中) return;
  m_answerClock.stop();
  after(m_flow.KnownKey(byButton));
}

void PracticeLoop::requestPrint() {
  m_dialogs.show(m_printRequests.request(m_state.item()));
  m_screen.showMessage(MarkedText());
  if (!m_確認中) stay();
}

void PracticeLoop::tick() {
  if (!m_answerClock.running()) return;
  m_answerClock.tick(m_state.timeUpSound);
  m_state.timeOver = m_answerClock.timeOver();
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
  const bool wanted = m_dialogs.ask(QStringLiteral("問題の出題を順不同にしますか？"));
  m_random.reseed();
  if (!wanted) return;
  m_screen.showStatus(StatusPanel::Order, QStringLiteral("順不同出題"));
  if (m_state.set.startIndex == m_state.set.itemCount()) return;
  m_state.set.reshuffle(m_random);
  m_reviewRing.clear();
  leaveConfirmation();
  emptyAreas();
  m_state.POS = m_state.set.startIndex;
  goToItem();
}

void PracticeLoop::回数カウント() {
  int& times = m_state.item().itemTimes;
  times = std::min(maxTimes, times + 1);
  m_report.finish(m_state);
  m_screen.showCounts(m_report.counts());
  m_screen.showLog(m_report.runLog(), m_logShown);
}

void PracticeLoop::requestExit() {
  if (m_dialogs.ask(QStringLiteral("終了しますか？")))
    exitAtOnce();
  else
    exitRefused();
}

void PracticeLoop::requestLessonChange() {
  if (m_dialogs.ask(
          QStringLiteral("このレッスンファイルを終了して別のレッスンファイルに変更しますか"))) {
    m_backToConditions = true;
    exitAtOnce();
  } else {
    exitRefused();
  }
}

void PracticeLoop::exitRefused() {
  if (m_確認中)
    enter(QString());
  else
    stay();
}

void PracticeLoop::exitAtOnce() {
  if (m_exitConfirmed) return;
  m_exitConfirmed = true;
  m_answerClock.stop();
  m_review.stop();
  m_screen.close();
}

}  // namespace tavoli
