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

namespace tavoli {

namespace {

constexpr int tablesTab = levelCount;
constexpr double programPoints = 11;
constexpr double buttonPoints = 14;

QString noteOf(Level level) {
  if (level == 中学)
    return QStringLiteral(
        "（注）回数単熟中学DB，回数文中学DB　：高校ｺｰｽや専門ｺｰｽのときもこのDBにｱｸｾｽすることがある"
        "。");
  if (level == 高校)
    return QStringLiteral(
        "（注）回数単熟高校DB，回数文高校DB　：中学ｺｰｽや専門ｺｰｽのときもこのDBにｱｸｾｽすることがある"
        "。");
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
      m_command1(makeButton(QStringLiteral("Command1"), QStringLiteral("次へ"))),
      m_command2(makeButton(QStringLiteral("Command2"), QStringLiteral("終了"))) {
  setWindowTitle(tavoli::windowTitle(QStringLiteral("先月までの状況と今月の状況")));
  choosePdf = [this] {
    QFileDialog dialog(this, tavoli::windowTitle(QStringLiteral("PDFファイルに保存")),
                       QDir::homePath(), QStringLiteral("PDF (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    dialog.selectFile(QStringLiteral("Tavoli進捗.pdf"));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
  };
  const QStringList captions = {QStringLiteral("中学"), QStringLiteral("高校"),
                                QStringLiteral("専門")};
  for (const Level level : {中学, 高校, 専門}) {
    m_chartPages[level] = new ChartPage(noteOf(level));
    m_tabs->addTab(m_chartPages[level], captions[static_cast<int>(level)]);
  }
  m_tabs->addTab(m_tablesPage, QStringLiteral("中高専"));
  m_tabs->setObjectName(QStringLiteral("TabStrip1"));
  m_tabs->setAccessibleName(QStringLiteral("コース"));
  m_tabs->tabBar()->setAccessibleName(QStringLiteral("コース"));

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
  QAction* print =
      menuBar()->addAction(QStringLiteral("◆記憶状態の印刷"), this, &TAVOstate::printReport);
  print->setObjectName(QStringLiteral("menu2"));
  QMenu* survey = menuBar()->addMenu(QStringLiteral("◆記憶状態の調査・更新"));
  survey->setObjectName(QStringLiteral("menu1"));
  survey->addAction(QStringLiteral("中学単熟"), this, [this] { m_survey.surveyWords(中学); })
      ->setObjectName(QStringLiteral("menu11"));
  survey->addAction(QStringLiteral("高校単熟"), this, [this] { m_survey.surveyWords(高校); })
      ->setObjectName(QStringLiteral("menu12"));
  survey->addAction(QStringLiteral("専門単熟"), this, [this] { m_survey.surveySpecial(); })
      ->setObjectName(QStringLiteral("menu13"));
  survey->addAction(QStringLiteral("文"), this, [this] { m_survey.surveySentences(); })
      ->setObjectName(QStringLiteral("menu14"));
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
  ChoiceDialog tavo9({QStringLiteral("専門ＤＢの指定"),
                      QStringLiteral("専門ＤＢを選択して下さい。"), tables, m_sources.specialTable},
                     this);
  tavo9.setObjectName(QStringLiteral("TAVO9"));
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
