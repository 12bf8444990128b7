// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/PracticeRun.h"

#include "practice/PracticeScreen.h"
#include "practice/PracticeSetLoader.h"
#include "practice/QuestionPrinting.h"
#include "system/Clock.h"
#include "system/Dialogs.h"

using namespace Qt::StringLiterals;

namespace tavoli {

PracticeRun::PracticeRun(const LearnerFiles& learner, const CourseChoice& course,
                         const PracticeConditions& conditions, RunClock& times,
                         const ProgressCounters& progress, const RunServices& services)
    : m_learner(learner),
      m_course(course),
      m_conditions(conditions),
      m_times(times),
      m_progress(progress),
      m_services(services) {}

PracticeRun::~PracticeRun() = default;

bool PracticeRun::openTables() {
  LearningTables::Opened opened = LearningTables::open(m_learner.dbFileWork, m_course);
  m_tables = std::move(opened.tables);
  if (!m_tables) {
    m_services.dialogs.show(m_learner.dbFileWork + u" : OpenDatabase error    Err.Number="_s +
                            QString::number(opened.errorNumber));
    return false;
  }
  const QStringList tables = prWhichTable(m_course);
  for (std::vector<Dictionary>* dictionaries : {&m_dictionaries, &m_reviewDictionaries})
    for (int place = 1; place <= m_tables->places(); ++place)
      dictionaries->push_back(dictionaryOf(tables[place - 1], m_tables->rsTDIC(place)));
  return true;
}

bool PracticeRun::open(PracticeScreen& screen, ReviewScreen& reviewScreen, LoadProgress& progress,
                       const QString& startKey) {
  m_settings = readAutoPlaySettings(m_tables->rsBDIC());
  PracticeVoice(m_services.speaker).greet();
  m_set = PracticeSetLoader(*m_tables, m_course, m_conditions, m_services.files, m_services.random,
                            m_services.dialogs, progress)
              .LoadPracticeSet(startKey);
  if (m_set.itemCount() < 2) {
    m_services.dialogs.show(u"条件に合う英語が２個以上ありません。再度、条件設定をして下さい。"_s);
    return false;
  }
  m_loop = std::make_unique<PracticeLoop>(
      m_set, m_course, m_conditions, m_times,
      LoopServices{screen, reviewScreen, m_services.dialogs, m_services.random, m_services.clock,
                   m_services.speaker, m_progress});
  m_loop->start(m_settings.timeUpSound);
  return true;
}

std::optional<StoredRun> PracticeRun::close(const RunEnd::Retry& retry) {
  if (!m_tables || !m_loop || !m_loop->exitConfirmed()) return std::nullopt;
  m_dictionaries.clear();
  m_reviewDictionaries.clear();
  m_settings.timeUpSound = m_loop->timeUpSound();
  return RunEnd(m_learner, m_services.files, m_services.clock)
      .saveRunEnd(std::move(m_tables), m_set,
                  {m_loop->POS(), m_course, m_loop->conditions(), m_settings, m_times,
                   m_loop->report().progress()},
                  retry);
}

QStringList PracticeRun::printRequests() {
  return tavoli::printRequests(m_loop->printRequests(), m_learner, m_services.paper,
                               m_services.clock);
}

}  // namespace tavoli
