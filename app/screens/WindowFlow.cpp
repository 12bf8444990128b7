#include "app/screens/WindowFlow.h"

#include <QApplication>
#include <QScreen>

#include "app/LoginLayout.h"
#include "app/screens/ProgramIcon.h"
#include "home/Placement.h"
#include "practice/screens/TAVO7.h"
#include "progress/TableSurvey.h"
#include "system/TypeFaces.h"

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
      m_end(module, m_workingCopy, m_dialogs) {
  QApplication::setFont(programFont());
  QApplication::setWindowIcon(programIcon());
  m_tavo1 = std::make_unique<TAVO1>(m_module, m_files, m_dialogs, version);
  m_login = std::make_unique<Login>(m_module, m_workingCopy, m_files, m_clock, m_dialogs, *m_tavo1);
  m_tavo1->next = [this](const QString& id, const QString& password) {
    return m_login->next(id, password);
  };
  m_tavo1->loggedIn = [this] { showState(); };
  m_tavo1->finished = [] { QApplication::quit(); };
}

int WindowFlow::run() {
  // Windows follow each other: for a moment none may be open.
  QApplication::setQuitOnLastWindowClosed(false);
  m_tavo1->show();
  return QApplication::exec();
}

void WindowFlow::showState() {
  // The login enlarges itself on large screens; the other windows go by the program's font.
  const QSize screen = m_tavo1->screen()->size();
  QFont font = programFont();
  font.setPointSizeF(font.pointSizeF() * loginLayout(screen).scale);
  QApplication::setFont(font);
  m_state = std::make_unique<TAVOstate>(
      ProgressSources{m_module.learner.userId, m_module.learner.dbFileWork, m_module.course.COURSE,
                      m_module.course.specialTable, m_module.progress, m_clock, m_dialogs, m_paper},
      [this] { showConditions(); }, [this] { leave(); });
  m_state->showMaximized();
  m_tavo1->hide();
}

void WindowFlow::showConditions() {
  if (!m_tavo2) {
    m_tavo2 = std::make_unique<TAVO2>(
        TAVO2::Shared{m_module.learner, m_module.course, m_module.conditions},
        ConditionsServices{m_files, m_dialogs, lessonFolder(m_module.applicationFolder),
                           [this](const QString& table) {
                             recountSpecialTable(m_module.learner.dbFileWork, table,
                                                 m_module.progress);
                           }});
    m_tavo2->next = [this](const QString& startKey) { startPractice(startKey); };
    m_tavo2->leave = [this] { leave(); };
  }
  if (!m_tavo2->enter()) {
    m_dialogs.show(QStringLiteral("%1 の練習条件を読めません。プログラムを終了します。")
                       .arg(m_module.learner.dbFileWork));
    leave();
    return;
  }
  m_tavo2->show();
  m_state->hide();
}

void WindowFlow::startPractice(const QString& startKey) {
  m_module.clock.休憩時間 = 0;
  m_module.clock.restClock = m_clock.now();
  m_tavo4.reset();
  m_tavo3.reset();
  m_run = std::make_unique<PracticeRun>(
      m_module.learner, m_module.course, m_module.conditions, m_module.clock, m_module.progress,
      RunServices{m_files, m_clock, m_random, m_dialogs, m_speaker, m_paper});
  if (!m_run->openTables()) {
    m_run.reset();
    return;
  }
  m_tavo3 = std::make_unique<TAVO3>();
  m_tavo3->resize(m_tavo2->screen()->availableSize() * 9 / 10);
  for (Dictionary& dictionary : m_run->dictionaries())
    m_tavo3->addLookUp(dictionary.heading, dictionary.lookUp);
  m_tavo4 = std::make_unique<TAVO4>();
  for (Dictionary& dictionary : m_run->reviewDictionaries())
    m_tavo4->addLookUp(dictionary.heading, dictionary.lookUp);
  TAVO7 progress(m_tavo2.get());
  if (!m_run->open(*m_tavo3, *m_tavo4, progress, startKey)) {
    m_tavo4.reset();
    m_tavo3.reset();
    m_run.reset();
    return;
  }
  m_tavo3->connectTo(m_run->loop(), m_clock, [this] { endPractice(); });
  m_tavo4->connectTo(
      m_run->loop(), [this] { replaceWindow(*m_tavo3, *m_tavo4); },
      [this] {
        m_tavo3->resumeFromReview();
        replaceWindow(*m_tavo4, *m_tavo3);
      });
  m_tavo3->show();
  m_tavo2->hide();
}

void WindowFlow::endPractice() {
  m_tavo4->hide();
  QApplication::setOverrideCursor(Qt::WaitCursor);
  const RunOver over = m_end.endRun(*m_run);
  QApplication::restoreOverrideCursor();
  if (over.toConditions)
    showConditions();
  else if (over.stored)
    QApplication::quit();
  else
    leave();
}

void WindowFlow::leave() {
  m_end.leave();
  QApplication::quit();
}

}  // namespace tavoli
