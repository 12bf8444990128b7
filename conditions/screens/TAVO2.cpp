// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/screens/TAVO2.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QGuiApplication>
#include <QScreen>
#include <QScrollArea>

#include <algorithm>
#include <utility>

#include "conditions/screens/ChoicePanel.h"
#include "conditions/screens/LessonPanel.h"
#include "conditions/screens/NumbersPanel.h"
#include "conditions/screens/PastPanel.h"
#include "system/screens/ChoiceDialog.h"
#include "system/screens/FoldingRow.h"
#include "system/screens/WindowTitle.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

QPushButton* makeButton(const QString& name, const QString& caption, QWidget* parent) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(name);
  button->setAutoDefault(true);
  return button;
}

}  // namespace

TAVO2::TAVO2(ConditionsRules& rules, QWidget* parent) : QMainWindow(parent) {
  setObjectName(u"TAVO2"_s);
  setWindowTitle(tavoli::windowTitle(u"練習対象の選択条件／復習周期／目標回答時間"_s));
  auto* centre = new QWidget(this);
  auto* columns = new FoldingRow(this, FoldingRow::Fold::BelowPreferred);
  auto* present = new QGroupBox(u"今回"_s, columns);
  m_choices = new ChoicePanel(rules, present);
  auto* details = new QWidget(present);
  m_lesson = new LessonPanel(rules, details);
  m_numbers = new NumbersPanel(rules, details);
  m_past = new PastPanel(rules, columns);
  m_command1 = makeButton(u"Command1"_s, u"次へ"_s, centre);
  connect(m_command1, &QPushButton::clicked, this, [this, &rules] {
    if (const std::optional<QString> startKey = rules.next()) Q_EMIT next(*startKey);
  });
  auto* command5 = makeButton(u"Command5"_s, u"終了"_s, centre);
  connect(command5, &QPushButton::clicked, this, &QWidget::close);

  auto* right = new QVBoxLayout(details);
  right->setContentsMargins({});
  right->addWidget(m_lesson, 1);
  right->addWidget(m_numbers);
  auto* parts = new FoldingRow(present);
  parts->add(m_choices);
  parts->add(details, 1);
  (new QVBoxLayout(present))->addWidget(parts);
  columns->add(present, 3);
  columns->add(m_past, 1);
  auto* scrolled = new QScrollArea(centre);
  scrolled->setFrameShape(QFrame::NoFrame);
  scrolled->setWidgetResizable(true);
  scrolled->setFocusPolicy(Qt::NoFocus);
  scrolled->setWidget(columns);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(m_command1);
  buttons->addWidget(command5);
  auto* column = new QVBoxLayout(centre);
  column->addWidget(scrolled, 1);
  column->addLayout(buttons);
  setCentralWidget(centre);
  // In lines of the font, which is larger on a large screen.
  constexpr QSize wanted(68, 46);
  constexpr double part = 0.9;
  resize((wanted * fontMetrics().height()).boundedTo(screen()->availableSize() * part));
}

TAVO2::~TAVO2() {
  // A field that is left reports to the rules, and they show what it holds.
  hide();
}

void TAVO2::showCourse(Course COURSE, const QString& specialTable) {
  m_choices->showCourse(COURSE, specialTable);
}

void TAVO2::showMethod(SelMethod selMethod) {
  m_choices->showMethod(selMethod);
  m_lesson->showMethod(selMethod);
}

void TAVO2::showStartMode(StartMode startMode) {
  m_choices->showStartMode(startMode);
}

void TAVO2::listStarts(const QStringList& entries) {
  m_choices->start().list(entries);
}

void TAVO2::showStart(const QString& text) {
  m_choices->start().showText(text);
}

void TAVO2::showMemory(MemorySelect memorySelect) {
  m_choices->showMemory(memorySelect);
}

void TAVO2::showNumber(NumberField field, const QString& text) {
  m_numbers->showNumber(field, text);
}

void TAVO2::showFolder(const QString& folder) {
  m_lesson->showFolder(folder);
}

void TAVO2::showLessonName(const QString& name) {
  m_lesson->showName(name);
}

void TAVO2::showLesson(const QStringList& lines, const QString& trouble) {
  m_lesson->showLesson(lines, trouble);
}

void TAVO2::listPastRuns(const QStringList& entries) {
  m_past->list(entries);
}

void TAVO2::showPastRun(const QString& caption, const PastRun& run) {
  m_past->showRun(caption, run);
}

std::optional<QString> TAVO2::chooseSpecialTable(const QStringList& tables,
                                                 const QString& present) {
  ChoiceDialog dialog({u"専門ＤＢの指定"_s, u"専門ＤＢを選択して下さい。"_s, tables, present},
                      this);
  dialog.setObjectName(u"TAVO8"_s);
  if (isVisible()) {
    const QGroupBox& courses = m_choices->courses();
    const QPoint beside = courses.mapToGlobal(courses.rect().topRight());
    const int most = screen()->availableGeometry().right() - dialog.sizeHint().width();
    dialog.move(std::min(beside.x(), most), beside.y());
  }
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.chosen();
}

void TAVO2::focusNext() {
  m_command1->setFocus();
}

void TAVO2::focusLessonName() {
  m_lesson->focusName();
}

void TAVO2::focusStart() {
  m_choices->start().setFocus();
}

void TAVO2::setBusy(bool busy) {
  if (busy)
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QGuiApplication::restoreOverrideCursor();
}

void TAVO2::closeEvent(QCloseEvent* event) {
  event->accept();
  if (!std::exchange(m_left, true)) Q_EMIT left();
}

}  // namespace tavoli
