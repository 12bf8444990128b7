#include "practice/PracticeLoop.h"

#include <algorithm>

#include "practice/PracticeScreen.h"
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
                           PracticeConditions& conditions, PracticeScreen& screen, Dialogs& dialogs,
                           Random& random)
    : m_state{set, course, conditions,
              comparisonSettings(conditions.compareMode, conditions.compareFlag)},
      m_screen(screen),
      m_dialogs(dialogs),
      m_random(random),
      m_flow(m_state, screen, dialogs) {}

void PracticeLoop::start() {
  const PracticeConditions& conditions = m_state.conditions;
  m_screen.showCaption(captionOf(conditions));
  m_screen.showStatus(StatusPanel::Review,
                      conditions.reviewCycle == 0
                          ? QStringLiteral("復習なし")
                          : QStringLiteral("復習は%1問ごとに").arg(conditions.reviewCycle));
  chooseComparison(comparisonChoiceOf(m_state.comparison));
  m_screen.showStatus(StatusPanel::Order,
                      conditions.isRandom() ? QStringLiteral("ランダム出題 ") : QString());
  m_state.POS = m_state.set.startIndex;
  if (dispPOS1()) advance();
}

bool PracticeLoop::dispPOS1() {
  m_state.wordShownCount = 0;
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
  m_state.復習する = false;
  m_state.repeatsLeft =
      item.isSentence() ? m_state.conditions.firstRepeatSent : m_state.conditions.firstRepeatWord;
  item.itemDirty = true;
  m_state.record = m_state.set.parsed(m_state.POS);
  const QString position = QStringLiteral("位置=%1／%2").arg(m_state.POS).arg(itemCount);
  m_screen.showStatus(StatusPanel::Position,
                      item.isSentence() ? position + u' ' + item.itemEnglish : position);
  return true;
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
    return;
  }
  // An item of which nothing was asked is only shown.
  if (m_state.wordShownCount > 0) 回数カウント();
  dispAnswerFull();
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

void PracticeLoop::nextQuestion() {
  ++m_state.POS;
  if (dispPOS1()) advance();
}

void PracticeLoop::dispQuestion() {
  ++m_state.wordShownCount;
  m_state.tryCount = 0;
  m_state.answerShown = false;
  m_state.timeOver = false;
  const PracticeItem& item = m_state.item();
  const CurrentRecord& record = m_state.record;
  const SubQuestion& s = m_state.小問();
  m_screen.showSource(sourceLabel(record, item.itemEnglish, item.itemTable, m_state.course.COURSE));
  m_screen.showQuestion(parseMarks(record.sentence ? record.問題文 : s.日本語));
  m_screen.showStatus(
      StatusPanel::Times,
      QStringLiteral("練習回数 = %1").arg(record.sentence ? item.itemTimes : s.小問回数));
  m_screen.setAnswer(answerStart(record, m_state.POS1));
  m_flow.ShowMiniTestNotice();
  m_screen.focusAnswer();
}

void PracticeLoop::dispAnswerFull() {
  m_確認中 = true;
  m_screen.showMiniTest(MarkedText());
  m_screen.setAnswer(QString());
  m_screen.showFullAnswer(parseMarks(fullAnswerText(m_state.record)));
  m_screen.awaitConfirmation(true);
}

void PracticeLoop::keyPressed() {
  m_screen.showMessage(QString());
}

void PracticeLoop::enter(const QString& typed) {
  m_screen.showFullAnswer(MarkedText());
  m_screen.showMessage(QString());
  if (!m_確認中) {
    after(m_flow.enter(typed));
    return;
  }
  leaveConfirmation();
  nextQuestion();
}

void PracticeLoop::leaveConfirmation() {
  if (!m_確認中) return;
  m_確認中 = false;
  m_screen.awaitConfirmation(false);
}

void PracticeLoop::showAnswer() {
  if (m_確認中) return;
  m_flow.showAnswer();
  stay();
}

void PracticeLoop::markKnown(bool byButton) {
  if (!m_確認中) after(m_flow.KnownKey(byButton));
}

void PracticeLoop::chooseComparison(int choice) {
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
  leaveConfirmation();
  m_screen.showFullAnswer(MarkedText());
  m_screen.showMessage(QString());
  m_state.POS = m_state.set.startIndex;
  if (dispPOS1()) advance();
}

void PracticeLoop::回数カウント() {
  int& times = m_state.item().itemTimes;
  times = std::min(maxTimes, times + 1);
}

void PracticeLoop::requestExit() {
  if (m_dialogs.ask(QStringLiteral("終了しますか？"))) {
    exitAtOnce();
  } else if (m_確認中) {
    enter(QString());
  }
}

void PracticeLoop::exitAtOnce() {
  if (m_exitConfirmed) return;
  m_exitConfirmed = true;
  m_screen.close();
}

}  // namespace tavoli
