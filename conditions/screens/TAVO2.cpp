#include "conditions/screens/TAVO2.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <utility>

#include "conditions/ConditionsText.h"

namespace tavoli {

namespace {

void fill(QFormLayout* form, const ConditionLines& lines) {
  while (form->rowCount() > 0) form->removeRow(0);
  for (const auto& [caption, value] : lines) {
    auto* label = new QLabel(value);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    form->addRow(caption, label);
  }
}

}  // namespace

TAVO2::TAVO2(std::function<void()> next, std::function<void()> leave, QWidget* parent)
    : QMainWindow(parent), m_next(std::move(next)), m_leave(std::move(leave)) {
  setWindowTitle(QStringLiteral("練習対象の選択条件／復習周期／目標回答時間 - Tavoli"));
  auto* centre = new QWidget(this);
  auto* present = new QGroupBox(QStringLiteral("今回"), centre);
  m_present = new QFormLayout(present);
  auto* before = new QGroupBox(QStringLiteral("前回"), centre);
  before->setObjectName(QStringLiteral("Frame2"));
  auto* beforeColumn = new QVBoxLayout(before);
  m_past = new QComboBox(before);
  m_past->setObjectName(QStringLiteral("Combo2"));
  m_past->setAccessibleName(QStringLiteral("過去の練習条件"));
  m_past->setPlaceholderText(QStringLiteral("過去の練習条件"));
  connect(m_past, &QComboBox::currentIndexChanged, this, &TAVO2::showPastRun);
  m_before = new QFormLayout;
  beforeColumn->addWidget(m_past);
  beforeColumn->addLayout(m_before);
  beforeColumn->addStretch(1);

  auto* start = new QPushButton(QStringLiteral("次へ"), centre);
  start->setObjectName(QStringLiteral("Command1"));
  start->setAutoDefault(true);
  start->setDefault(true);
  connect(start, &QPushButton::clicked, this, [this] { m_next(); });
  auto* end = new QPushButton(QStringLiteral("終了"), centre);
  end->setObjectName(QStringLiteral("Command5"));
  end->setAutoDefault(true);
  connect(end, &QPushButton::clicked, this, &QWidget::close);

  auto* columns = new QHBoxLayout;
  columns->addWidget(present, 1);
  columns->addWidget(before, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(start);
  buttons->addWidget(end);
  auto* column = new QVBoxLayout(centre);
  column->addLayout(columns, 1);
  column->addLayout(buttons);
  setCentralWidget(centre);
  resize(fontMetrics().height() * 55, fontMetrics().height() * 38);
  start->setFocus();
}

void TAVO2::showConditions(const CourseChoice& course, const PracticeConditions& conditions,
                           const QStringList& pastConditions) {
  fill(m_present, describeConditions(course, conditions));
  m_pastConditions = pastConditions;
  m_past->clear();
  m_past->addItems(listPastConditions(pastConditions));
  m_past->setCurrentIndex(static_cast<int>(pastConditions.size()) - 1);
}

void TAVO2::showPastRun(int index) {
  fill(m_before,
       index < 0 ? ConditionLines() : describePastRun(readConditions(m_pastConditions[index])));
}

void TAVO2::closeEvent(QCloseEvent* event) {
  event->accept();
  if (m_leave) std::exchange(m_leave, nullptr)();
}

}  // namespace tavoli
