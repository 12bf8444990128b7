#include "practice/PracticeLoop.h"

#include <algorithm>

#include "data/Text.h"
#include "practice/PracticeScreen.h"
#include "system/Dialogs.h"

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
                           const PracticeConditions& conditions, PracticeScreen& screen,
                           Dialogs& dialogs)
    : m_set(set),
      m_course(course),
      m_conditions(conditions),
      m_screen(screen),
      m_dialogs(dialogs),
      m_comparison(comparisonSettings(conditions.compareMode, conditions.compareFlag)) {}

void PracticeLoop::start() {
  m_screen.showCaption(captionOf(m_conditions));
  m_screen.showStatus(StatusPanel::Review,
                      m_conditions.reviewCycle == 0
                          ? QStringLiteral("復習なし")
                          : QStringLiteral("復習は%1問ごとに").arg(m_conditions.reviewCycle));
  m_screen.showStatus(StatusPanel::Comparison, comparisonStatus(m_comparison));
  m_screen.showStatus(StatusPanel::Order,
                      m_conditions.isRandom() ? QStringLiteral("ランダム出題 ") : QString());
  m_POS = m_set.startIndex;
  if (dispPOS1()) advance();
}

bool PracticeLoop::dispPOS1() {
  m_shownCount = 0;
  if (m_POS > m_set.itemCount()) {
    if (!m_dialogs.ask(QStringLiteral("最後まで終了しました。最初から再開しますか。")) &&
        m_dialogs.ask(QStringLiteral("終了しますか？"))) {
      exitAtOnce();
      return false;
    }
    m_POS = m_set.startIndex;
  }
  m_POS1 = 1;
  PracticeItem& item = m_set.item(m_POS);
  item.itemDirty = true;
  m_record = m_set.parsed(m_POS);
  const QString position = QStringLiteral("位置=%1／%2").arg(m_POS).arg(m_set.itemCount());
  m_screen.showStatus(StatusPanel::Position,
                      item.isSentence() ? position + u' ' + item.itemEnglish : position);
  return true;
}

bool PracticeLoop::fnNextExist() {
  while (m_record.has(m_POS1) && !memoryAdmitted(m_conditions.memorySelect, m_record.記(m_POS1)))
    ++m_POS1;
  return m_record.has(m_POS1);
}

void PracticeLoop::advance() {
  if (fnNextExist()) {
    dispQuestion();
    return;
  }
  // An item of which nothing was asked is only shown.
  if (m_shownCount > 0) 回数カウント();
  dispAnswerFull();
}

void PracticeLoop::nextQuestion() {
  ++m_POS;
  if (dispPOS1()) advance();
}

void PracticeLoop::dispQuestion() {
  ++m_shownCount;
  const PracticeItem& item = m_set.item(m_POS);
  const SubQuestion& s = m_record.at(m_POS1);
  m_screen.showSource(sourceLabel(m_record, item.itemEnglish, item.itemTable, m_course.COURSE));
  m_screen.showQuestion(parseMarks(m_record.sentence ? m_record.問題文 : s.日本語));
  m_screen.showStatus(
      StatusPanel::Times,
      QStringLiteral("練習回数 = %1").arg(m_record.sentence ? item.itemTimes : s.小問回数));
  m_screen.setAnswer(answerStart(m_record, m_POS1));
}

void PracticeLoop::dispAnswerFull() {
  m_確認中 = true;
  m_screen.setAnswer(QString());
  m_screen.showFullAnswer(parseMarks(fullAnswerText(m_record)));
  m_screen.awaitConfirmation(true);
}

void PracticeLoop::enter(const QString& typed) {
  m_screen.showFullAnswer(MarkedText());
  m_screen.showMessage(QString());
  if (!m_確認中) {
    judge(trimBlanks(typed));
    return;
  }
  m_確認中 = false;
  m_screen.awaitConfirmation(false);
  nextQuestion();
}

void PracticeLoop::judge(const QString& typed) {
  const QString given = answerStart(m_record, m_POS1);
  const bool nothingTyped =
      typed.isEmpty() || (!isCorrection(m_record) && typed.size() <= given.size());
  if (nothingTyped) {
    m_screen.setAnswer(given);
    return;
  }
  const QString& answer = m_record.sentence ? m_record.text(m_POS1) : m_record.英語;
  if (isAnswer(answer, typed, m_comparison)) {
    answeredRight();
    return;
  }
  m_screen.showFullAnswer(plainText(typed + QStringLiteral(" は正解ではありません。")));
  m_screen.setAnswer(given);
}

void PracticeLoop::answeredRight() {
  SubQuestion& s = m_record.at(m_POS1);
  QString message = QStringLiteral("○　正解です。");
  if (s.記 == memory全然) {
    s.記 = memoryうろ覚え;
    message = m_record.sentence
                  ? QStringLiteral("○　正解です。　『うろ覚え』にしました。")
                  : QStringLiteral("○　正解です。『うろ覚え』にしました。『 %1 』").arg(s.日本語);
  }
  if (!m_record.sentence) s.小問回数 = std::min(maxTimes, s.小問回数 + 1);
  m_set.RewriteRecord(m_POS, m_record);
  m_screen.showMessage(message);
  ++m_POS1;
  advance();
}

void PracticeLoop::回数カウント() {
  int& times = m_set.item(m_POS).itemTimes;
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
