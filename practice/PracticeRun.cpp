#include "practice/PracticeRun.h"

#include "practice/PracticeScreen.h"
#include "practice/RunEnd.h"
#include "system/Clock.h"
#include "system/Dialogs.h"

namespace tavoli {

PracticeRun::PracticeRun(const LearnerFiles& learner, const CourseChoice& course,
                         PracticeConditions& conditions, Files& files, const Clock& clock,
                         Random& random, Dialogs& dialogs)
    : m_learner(learner),
      m_course(course),
      m_conditions(conditions),
      m_files(files),
      m_clock(clock),
      m_random(random),
      m_dialogs(dialogs) {}

PracticeRun::~PracticeRun() = default;

bool PracticeRun::open(PracticeScreen& screen, LoadProgress& progress) {
  int errorNumber = 0;
  m_tables = LearningTables::open(m_learner.dbFileWork, m_course, errorNumber);
  if (!m_tables) {
    m_dialogs.show(QStringLiteral("%1 : OpenDatabase error    Err.Number=%2")
                       .arg(m_learner.dbFileWork)
                       .arg(errorNumber));
    return false;
  }
  m_set =
      PracticeSetLoader(*m_tables, m_course, m_conditions, m_files, m_random, m_dialogs, progress)
          .LoadPracticeSet(startKeyOf(m_conditions));
  if (m_set.itemCount() < 2) {
    m_tables.reset();
    m_dialogs.show(
        QStringLiteral("条件に合う英語が２個以上ありません。再度、条件設定をして下さい。"));
    return false;
  }
  screen.showStatus(StatusPanel::StartTime,
                    QStringLiteral("開始時刻　") + m_clock.now().toString(QStringLiteral("HH:mm")));
  m_loop =
      std::make_unique<PracticeLoop>(m_set, m_course, m_conditions, screen, m_dialogs, m_random);
  m_loop->start();
  return true;
}

bool PracticeRun::close() {
  if (!m_tables || !m_loop || !m_loop->exitConfirmed()) return false;
  return RunEnd(m_learner, m_files, m_clock, m_dialogs)
      .closeRun(std::move(m_tables), m_set, m_loop->POS(), m_course, m_conditions);
}

}  // namespace tavoli
