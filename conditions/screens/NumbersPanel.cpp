#include "conditions/screens/NumbersPanel.h"

#include <QLabel>
#include <QPushButton>

#include "conditions/ConditionsRules.h"
#include "system/screens/FoldingRow.h"

namespace tavoli {

namespace {

QPushButton* standardButton(const QString& name, const QString& what, QWidget* parent) {
  auto* button = new QPushButton(QStringLiteral("標準値に戻す"), parent);
  button->setObjectName(name);
  button->setAccessibleName(what + QStringLiteral("を標準値に戻す"));
  button->setAutoDefault(true);
  return button;
}

}  // namespace

NumbersPanel::NumbersPanel(ConditionsRules& rules, QWidget* parent)
    : QWidget(parent), m_rules(rules) {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins({});
  auto* amounts = new FoldingRow(this);
  amounts->add(makeLevels());
  amounts->add(makeLoads(), 1);
  grid->addWidget(amounts, 0, 0);
  addReview(grid);
  addTargets(grid);
}

void NumbersPanel::showNumber(NumberField field, const QString& text) {
  m_boxes[static_cast<size_t>(field)]->showText(text);
}

QGroupBox* NumbersPanel::makeGroup(const QString& title) {
  return new QGroupBox(title, this);
}

NumberBox* NumbersPanel::make(NumberField field, const QString& name, const QString& caption,
                              QGroupBox* group) {
  auto* box =
      new NumberBox(field, name, (group->title() + u' ' + caption).trimmed(), m_rules, group);
  m_boxes[static_cast<size_t>(field)] = box;
  return box;
}

QGroupBox* NumbersPanel::makeLevels() {
  QGroupBox* group = makeGroup(QStringLiteral("単語・熟語レベル"));
  auto* row = new QHBoxLayout(group);
  row->addWidget(
      make(NumberField::LevelFrom, QStringLiteral("Text6"), QStringLiteral("から"), group));
  row->addWidget(new QLabel(QStringLiteral("～"), group));
  row->addWidget(
      make(NumberField::LevelTo, QStringLiteral("Text7"), QStringLiteral("まで"), group));
  row->addStretch(1);
  return group;
}

QGroupBox* NumbersPanel::makeLoads() {
  QGroupBox* group = makeGroup(QStringLiteral("最大読込数"));
  const QString words = QStringLiteral("単語・熟語");
  const QString sentences = QStringLiteral("例文");
  auto* row = new QHBoxLayout(group);
  row->addWidget(new QLabel(words, group));
  row->addWidget(make(NumberField::MaxLoadWords, QStringLiteral("Text9"), words, group));
  row->addWidget(new QLabel(sentences, group));
  row->addWidget(make(NumberField::MaxLoadSent, QStringLiteral("Text10"), sentences, group));
  row->addStretch(1);
  return group;
}

void NumbersPanel::addReview(QGridLayout* grid) {
  QGroupBox* group = makeGroup(QStringLiteral("復習周期の指定"));
  auto* row = new QHBoxLayout(group);
  row->addWidget(make(NumberField::ReviewCycle, QStringLiteral("Text8"), QString(), group));
  auto* none = new QLabel(QStringLiteral("復習周期 = 0の場合は復習をしない"), group);
  none->setWordWrap(true);
  row->addWidget(none, 1);
  auto* standard = standardButton(QStringLiteral("Command3"), group->title(), group);
  connect(standard, &QPushButton::clicked, this, [this] { m_rules.restoreReviewCycle(); });
  row->addWidget(standard);
  grid->addWidget(group, 1, 0);
}

void NumbersPanel::addTargets(QGridLayout* grid) {
  QGroupBox* group = makeGroup(QStringLiteral("目標回答時間の指定"));
  auto* rows = new QGridLayout(group);
  const auto addRow = [&](int row, const QString& caption, NumberField a, const QString& nameA,
                          NumberField b, const QString& nameB) {
    rows->addWidget(new QLabel(caption, group), row, 0);
    rows->addWidget(new QLabel(QStringLiteral("A"), group), row, 1);
    rows->addWidget(make(a, nameA, caption + QStringLiteral(" A"), group), row, 2);
    rows->addWidget(new QLabel(QStringLiteral("B"), group), row, 3);
    rows->addWidget(make(b, nameB, caption + QStringLiteral(" B"), group), row, 4);
  };
  addRow(0, QStringLiteral("例文"), NumberField::TargetSentA, QStringLiteral("Text11"),
         NumberField::TargetSentB, QStringLiteral("Text12"));
  addRow(1, QStringLiteral("単語・熟語"), NumberField::TargetWordA, QStringLiteral("Text13"),
         NumberField::TargetWordB, QStringLiteral("Text14"));
  auto* formula = new QLabel(QStringLiteral(" =正解長 X A＋B"), group);
  formula->setToolTip(QStringLiteral("正解の文字数に A 秒を掛け、B 秒を加えた時間です。"));
  rows->addWidget(formula, 0, 5, Qt::AlignRight | Qt::AlignVCenter);
  auto* standard = standardButton(QStringLiteral("Command2"), group->title(), group);
  connect(standard, &QPushButton::clicked, this, [this] { m_rules.restoreTargets(); });
  rows->addWidget(standard, 1, 5, Qt::AlignRight);
  rows->setColumnStretch(5, 1);
  grid->addWidget(group, 2, 0);
}

}  // namespace tavoli
