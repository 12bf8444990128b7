// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/ReviewDrill.h"

#include <utility>

#include "conditions/ConditionsText.h"
#include "data/Text.h"
#include "itemtext/QuestionText.h"
#include "judge/MemoryTransition.h"
#include "practice/RestTime.h"
#include "practice/ReviewScreen.h"
#include "practice/VerdictText.h"
#include "speech/Speaker.h"
#include "speech/SpeechOccasions.h"
#include "system/Dialogs.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr int triesUntilReveal = 2;

}  // namespace

ReviewDrill::ReviewDrill(const RunState& run, ReviewServices services)
    : m_run(run),
      m_services(std::move(services)),
      m_screen(m_services.screen),
      m_judge(m_screen),
      m_answerClock(m_services.clock, m_screen, m_services.speaker) {}

void ReviewDrill::startReview(std::vector<int> reviewList) {
  m_reviewList = std::move(reviewList);
  m_reviewFrom = 0;
  m_screen.beginReview(courseName(m_run.course.COURSE));
  nextReviewItem();
}

void ReviewDrill::stop() {
  m_answerClock.stop();
}

void ReviewDrill::nextReviewItem() {
  m_services.restTime.takeRestTime();
  emptyAreas();
  m_reviewTries = 0;
  m_requiredDone = 0;
  m_answerAsked = false;
  if (std::exchange(m_nextDue, false)) m_screen.awaitConfirmation(false);
  if (m_reviewFrom < m_reviewList.size()) {
    m_reviewPOS = m_reviewList[m_reviewFrom++];
    m_reviewPOS1 = 1;
    m_record = m_run.set.parsed(m_reviewPOS);
    m_answered.reset();
    showReviewQuestion();
    return;
  }
  m_answerClock.clear();
  m_screen.endReview();
  m_services.backToPractice();
}

void ReviewDrill::showReviewQuestion() {
  QString text = m_record.問題文;
  if (!m_record.sentence) {
    // A word is asked once, by all its meanings.
    QStringList meanings;
    for (int k = 1; k <= m_record.小問数; ++k) meanings.append(m_record.text(k));
    text = meanings.join(lineMark);
  }
  m_question = parseMarks(text);
  m_screen.showQuestion(m_question);
  m_reviewStopSpeech = true;
  ask();
}

void ReviewDrill::showSubQuestion(int POS1) {
  QuestionView view = questionView(m_question, m_record, POS1, m_answered);
  if (!m_record.sentence) view.count = 1;
  m_screen.showSubQuestion(view);
}

void ReviewDrill::ask() {
  showSubQuestion(m_reviewPOS1);
  askAgain();
  const PracticeConditions& c = m_run.conditions;
  // Sentences have the time of words here: they have been answered before.
  m_answerClock.startAnswerTimer(c.targetWordA * static_cast<double>(answer().size()) +
                                 c.targetWordB);
  m_screen.focusAnswer();
}

void ReviewDrill::askAgain() {
  m_judge.askAgain(m_record, m_reviewPOS1);
}

QString ReviewDrill::answer() const {
  return answerOf(m_record, m_reviewPOS1);
}

bool ReviewDrill::correcting() const {
  return isCorrection(m_record);
}

void ReviewDrill::emptyAreas() {
  m_screen.showFullAnswer(MarkedText());
  m_screen.showMessage(MarkedText());
}

void ReviewDrill::keyPressed() {
  m_services.restTime.takeRestTime();
  if (std::exchange(m_reviewStopSpeech, false)) m_services.speaker.stop();
  if (!m_nextDue) emptyAreas();
}

void ReviewDrill::enter(const QString& typed) {
  if (m_nextDue) {
    nextReviewItem();
    return;
  }
  keyPressed();
  const std::optional<Comparison> comparison =
      m_judge.judge(m_record, m_reviewPOS1, typed, m_run.comparison);
  if (!comparison) return;
  m_answerClock.stop();
  const Verdict verdict = comparison->ANScomp;
  if (verdict == Verdict::Right || comparison->accepted) return right(verdict);
  m_judge.refuse(m_record, m_reviewPOS1, *comparison);
  if (isSlip(verdict)) return;
  m_judge.lookUp(m_record, *comparison);
  if (verdict == Verdict::Wrong)
    wrong();
  else
    askAgain();
}

void ReviewDrill::right(Verdict verdict) {
  m_reviewTries = 0;
  speakAnswer();
  const int required =
      m_record.sentence ? m_run.conditions.requiredRepeatSent : m_run.conditions.requiredRepeatWord;
  if (m_answerAsked && ++m_requiredDone < required) {
    m_screen.showMessage(plainText(repeatsText(required - m_requiredDone)));
    askAgain();
    return;
  }
  m_screen.showMessage(plainText(praise(verdict)));
  m_answered.set(static_cast<size_t>(m_reviewPOS1));
  leaveSubQuestion();
}

void ReviewDrill::wrong() {
  ++m_reviewTries;
  if (m_reviewTries < triesUntilReveal) {
    askAgain();
    return;
  }
  m_screen.showMessage(plainText(answer() + u"　が正解です。"_s));
  leaveSubQuestion();
}

void ReviewDrill::leaveSubQuestion() {
  m_reviewTries = 0;
  m_requiredDone = 0;
  m_answerAsked = false;
  if (m_record.sentence && m_record.has(m_reviewPOS1 + 1)) {
    ++m_reviewPOS1;
    ask();
    return;
  }
  m_nextDue = true;
  m_answerClock.clear();
  showSubQuestion(m_reviewPOS1 + 1);
  m_screen.setAnswer(QString());
  m_screen.showFullAnswer(parseMarks(fullAnswerText(m_record)));
  m_screen.awaitConfirmation(true);
}

void ReviewDrill::speakAnswer() {
  m_services.speaker.speak(ShowAnswer(ShowAnswerMode::inReview, m_record, m_reviewPOS1));
}

void ReviewDrill::answerBoxLeft() {
  m_services.restTime.takeRestTime();
}

void ReviewDrill::answerBoxClicked() {
  if (m_nextDue) nextReviewItem();
}

void ReviewDrill::showAnswer() {
  m_services.restTime.takeRestTime();
  if (m_nextDue) return;
  m_requiredDone = 0;
  m_answerAsked = true;
  m_screen.showMessage(plainText(answerLine(m_record, m_reviewPOS1)));
  speakAnswer();
  m_screen.focusAnswer();
}

void ReviewDrill::requestExit() {
  if (m_services.dialogs.ask(u"終了しますか？"_s))
    m_services.exitRun();
  else if (m_nextDue)
    nextReviewItem();
  else
    m_screen.focusAnswer();
}

void ReviewDrill::tick() {
  m_answerClock.tick(m_run.timeUpSound);
}

}  // namespace tavoli
