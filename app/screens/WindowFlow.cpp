// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/screens/WindowFlow.h"

#include <QApplication>
#include <QScreen>

#include "app/LoginLayout.h"
#include "app/screens/ProgramIcon.h"
#include "home/Placement.h"
#include "practice/screens/TAVO7.h"
#include "progress/TableSurvey.h"
#include "system/TypeFaces.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

QFont programFont() {
  QFont font;
  font.setFamilies(familiesOf(TypeFace::Windows) << font.family());
  constexpr double pointSize = 11;
  font.setPointSizeF(pointSize);
  return font;
}

/// Brings a window up in the very place of another.
void replaceWindow(QWidget& hidden, QWidget& shown) {
  shown.restoreGeometry(hidden.saveGeometry());
  shown.show();
  shown.activateWindow();
  hidden.hide();
}

}  // namespace

WindowFlow::WindowFlow(Module1& module, const QString& version)
    : m_module(module),
      m_workingCopy(module.learner, m_files, m_clock, m_dialogs),
      m_end(module, m_workingCopy, m_dialogs),
      m_login(module, m_workingCopy, m_files, m_clock, m_dialogs),
      m_conditions(module.learner, module.course, module.conditions,
                   {m_files, m_dialogs, lessonFolder(module.applicationFolder),
                    [this](const QString& table) {
                      recountSpecialTable(m_module.learner.dbFileWork, table, m_module.progress);
                    }}) {
  QApplication::setFont(programFont());
  QApplication::setWindowIcon(programIcon());
  m_tavo1 = std::make_unique<TAVO1>(m_module, m_files, m_dialogs, version);
  QObject::connect(m_tavo1.get(), &TAVO1::next, [this](const QString& id, const QString& password) {
    if (!m_login.next(*m_tavo1, id, password)) return;
    showState();
    m_tavo1->letIn();
  });
  QObject::connect(m_tavo1.get(), &TAVO1::left, [] { QApplication::quit(); });
}

int WindowFlow::run() {
  // Windows follow each other: for a moment none may be open.
  QApplication::setQuitOnLastWindowClosed(false);
  m_tavo1->show();
  return QApplication::exec();
}

void WindowFlow::showState() {
  // The login enlarges itself on large screens; the other windows use the program's font.
  const QSize screen = m_tavo1->screen()->size();
  QFont font = programFont();
  font.setPointSizeF(font.pointSizeF() * loginLayout(screen).scale);
  QApplication::setFont(font);
  m_state = std::make_unique<TAVOstate>(ProgressSources{
      m_module.learner.userId, m_module.learner.dbFileWork, m_module.course.COURSE,
      m_module.course.specialTable, m_module.progress, m_clock, m_dialogs, m_paper});
  QObject::connect(m_state.get(), &TAVOstate::next, [this] { showConditions(); });
  QObject::connect(m_state.get(), &TAVOstate::left, [this] { endProgram(); });
  m_state->showMaximized();
  m_tavo1->hide();
}

void WindowFlow::showConditions() {
  if (!m_tavo2) {
    m_tavo2 = std::make_unique<TAVO2>(m_conditions);
    QObject::connect(m_tavo2.get(), &TAVO2::next,
                     [this](const QString& startKey) { startPractice(startKey); });
    QObject::connect(m_tavo2.get(), &TAVO2::left, [this] { endProgram(); });
  }
  if (!m_conditions.enter(*m_tavo2)) {
    m_dialogs.show(
        u"%1 の練習条件を読めません。プログラムを終了します。"_s.arg(m_module.learner.dbFileWork));
    endProgram();
    return;
  }
  m_tavo2->show();
  m_state->hide();
}

void WindowFlow::startPractice(const QString& startKey) {
  m_module.clock.休憩時間 = 0;
  m_module.clock.restClock = m_clock.now();
  m_practice.reset();
  auto stage = std::make_unique<PracticeStage>(
      m_module, RunServices{m_files, m_clock, m_random, m_dialogs, m_speaker, m_paper});
  if (!stage->run.openTables()) return;
  auto& [run, tavo3, tavo4] = *stage;
  tavo3.resize(m_tavo2->screen()->availableSize() * 9 / 10);
  for (Dictionary& dictionary : run.dictionaries())
    tavo3.addLookUp(dictionary.heading, dictionary.lookUp);
  for (Dictionary& dictionary : run.reviewDictionaries())
    tavo4.addLookUp(dictionary.heading, dictionary.lookUp);
  TAVO7 progress(m_tavo2.get());
  if (!run.open(tavo3, tavo4, progress, startKey)) return;
  tavo3.connectTo(run.loop(), m_clock);
  tavo4.connectTo(run.loop());
  QObject::connect(&tavo3, &TAVO3::closed, [this] { endPractice(); });
  QObject::connect(&tavo4, &TAVO4::begun,
                   [this] { replaceWindow(m_practice->tavo3, m_practice->tavo4); });
  QObject::connect(&tavo4, &TAVO4::over, [this] {
    m_practice->tavo3.resumeFromReview();
    replaceWindow(m_practice->tavo4, m_practice->tavo3);
  });
  m_practice = std::move(stage);
  tavo3.show();
  m_tavo2->hide();
}

void WindowFlow::endPractice() {
  m_practice->tavo4.hide();
  QApplication::setOverrideCursor(Qt::WaitCursor);
  const RunOver over = m_end.endRun(m_practice->run);
  QApplication::restoreOverrideCursor();
  if (over.toConditions)
    showConditions();
  else if (over.stored)
    QApplication::quit();
  else
    endProgram();
}

void WindowFlow::endProgram() {
  m_end.leave();
  QApplication::quit();
}

}  // namespace tavoli
