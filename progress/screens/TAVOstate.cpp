// SPDX-License-Identifier: GPL-3.0-or-later

#include "progress/screens/TAVOstate.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTabBar>

#include <utility>

#include "progress/ReportPrinting.h"
#include "progress/screens/PrintedReport.h"
#include "progress/screens/ProgressLayout.h"
#include "system/Clock.h"
#include "system/PageSurface.h"
#include "system/screens/ChoiceDialog.h"
#include "system/screens/WindowTitle.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr int tablesTab = levelCount;
constexpr double programPoints = 11;
constexpr double buttonPoints = 14;

QString noteOf(Level level) {
  if (level == 中学)
    return u"（注）回数単熟中学DB，回数文中学DB　：高校ｺｰｽや専門ｺｰｽのときもこのDBにｱｸｾｽすることがあ"
           u"る"
           "。"_s;
  if (level == 高校)
    return u"（注）回数単熟高校DB，回数文高校DB　：中学ｺｰｽや専門ｺｰｽのときもこのDBにｱｸｾｽすることがあ"
           u"る"
           "。"_s;
  return {};
}

}  // namespace

TAVOstate::TAVOstate(const ProgressSources& sources, QWidget* parent)
    : QMainWindow(parent),
      m_sources(sources),
      m_report(sources.counters),
      m_survey(sources.dbFileWork, sources.counters, sources.specialTable, sources.dialogs, *this),
      m_tabs(new QTabWidget(this)),
      m_tablesPage(new TablesPage),
      m_command1(makeButton(u"Command1"_s, u"次へ"_s)),
      m_command2(makeButton(u"Command2"_s, u"終了"_s)) {
  setWindowTitle(tavoli::windowTitle(u"先月までの状況と今月の状況"_s));
  choosePdf = [this] {
    QFileDialog dialog(this, tavoli::windowTitle(u"PDFファイルに保存"_s), QDir::homePath(),
                       u"PDF (*.pdf)"_s);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"pdf"_s);
    dialog.selectFile(u"Tavoli進捗.pdf"_s);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
  };
  const QStringList captions = {u"中学"_s, u"高校"_s, u"専門"_s};
  for (const Level level : {中学, 高校, 専門}) {
    m_chartPages[level] = new ChartPage(noteOf(level));
    m_tabs->addTab(m_chartPages[level], captions[static_cast<int>(level)]);
  }
  m_tabs->addTab(m_tablesPage, u"中高専"_s);
  m_tabs->setObjectName(u"TabStrip1"_s);
  m_tabs->setAccessibleName(u"コース"_s);
  m_tabs->tabBar()->setAccessibleName(u"コース"_s);

  auto* centre = new QWidget(this);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(m_command1);
  buttons->addWidget(m_command2);
  buttons->addStretch(1);
  auto* column = new QVBoxLayout(centre);
  column->addWidget(m_tabs, 1);
  column->addLayout(buttons);
  setCentralWidget(centre);
  makeMenus();

  connect(m_command1, &QPushButton::clicked, this, [this] {
    if (!std::exchange(m_gone, true)) Q_EMIT next();
  });
  connect(m_command2, &QPushButton::clicked, this, &QWidget::close);
  m_tabs->setCurrentIndex(static_cast<int>(courseLevel(m_sources.COURSE)));
  connect(m_tabs, &QTabWidget::currentChanged, this, &TAVOstate::drawPage);
  DispAchieve();
  m_command1->setFocus();
}

QPushButton* TAVOstate::makeButton(const QString& name, const QString& caption) {
  auto* button = new QPushButton(caption, this);
  button->setObjectName(name);
  button->setAutoDefault(true);
  QFont font = button->font();
  font.setPointSizeF(font.pointSizeF() * buttonPoints / programPoints);
  button->setFont(font);
  return button;
}

void TAVOstate::makeMenus() {
  QAction* print = menuBar()->addAction(u"◆記憶状態の印刷"_s, this, &TAVOstate::printReport);
  print->setObjectName(u"menu2"_s);
  QMenu* survey = menuBar()->addMenu(u"◆記憶状態の調査・更新"_s);
  survey->setObjectName(u"menu1"_s);
  survey->addAction(u"中学単熟"_s, this, [this] { m_survey.surveyWords(中学); })
      ->setObjectName(u"menu11"_s);
  survey->addAction(u"高校単熟"_s, this, [this] { m_survey.surveyWords(高校); })
      ->setObjectName(u"menu12"_s);
  survey->addAction(u"専門単熟"_s, this, [this] { m_survey.surveySpecial(); })
      ->setObjectName(u"menu13"_s);
  survey->addAction(u"文"_s, this, [this] { m_survey.surveySentences(); })
      ->setObjectName(u"menu14"_s);
}

void TAVOstate::DispAchieve() {
  m_stale.fill(true);
  drawPage();
}

void TAVOstate::drawPage() {
  const auto page = static_cast<size_t>(m_tabs->currentIndex());
  if (!std::exchange(m_stale[page], false)) return;
  if (page == tablesTab)
    m_tablesPage->showTables(m_report.tables(), m_sources.specialTable);
  else
    m_chartPages[page]->showCharts(m_report.charts(page));
}

void TAVOstate::showTables() {
  m_tabs->setCurrentIndex(tablesTab);
}

void TAVOstate::setBusy(bool busy) {
  if (busy) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    repaint();
  } else {
    QApplication::restoreOverrideCursor();
  }
  setEnabled(!busy);
  if (!busy) m_command1->setFocus();
}

std::optional<QString> TAVOstate::chooseSpecialTable(const QStringList& tables) {
  ChoiceDialog tavo9(
      {u"専門ＤＢの指定"_s, u"専門ＤＢを選択して下さい。"_s, tables, m_sources.specialTable}, this);
  tavo9.setObjectName(u"TAVO9"_s);
  if (tavo9.exec() != QDialog::Accepted) return std::nullopt;
  return tavo9.chosen();
}

void TAVOstate::printReport() {
  const bool with専門 = m_tabs->currentIndex() == static_cast<int>(専門);
  const auto draw = [&](PageSurface& page) {
    drawReport(page, m_report,
               {m_sources.userId, m_sources.specialTable, m_sources.clock.now(), with専門});
  };
  printOrSave(m_sources.paper, m_sources.dialogs, windowTitle(), draw, choosePdf);
}

void TAVOstate::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  const ProgressLayout layout = progressLayout(screen()->size().height());
  // The type grows with the screen, and the buttons with it.
  const double scale = font().pointSizeF() / programPoints;
  for (QPushButton* button : {m_command1, m_command2}) {
    button->setMinimumHeight(qRound(layout.buttonHeight * scale));
    button->setMinimumWidth(qRound(layout.buttonHeight * scale * 4));
  }
  m_tablesPage->setTopMargin(layout.tablesTopMargin);
}

void TAVOstate::closeEvent(QCloseEvent* event) {
  event->accept();
  if (!std::exchange(m_gone, true)) Q_EMIT left();
}

}  // namespace tavoli
