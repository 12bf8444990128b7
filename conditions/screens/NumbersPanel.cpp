// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/screens/NumbersPanel.h"

#include <QLabel>
#include <QPushButton>

#include "conditions/ConditionsRules.h"
#include "system/screens/FoldingRow.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

QPushButton* standardButton(const QString& name, const QString& what, QWidget* parent) {
  auto* button = new QPushButton(u"標準値に戻す"_s, parent);
  button->setObjectName(name);
  button->setAccessibleName(what + u"を標準値に戻す"_s);
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
  QGroupBox* group = makeGroup(u"単語・熟語レベル"_s);
  auto* row = new QHBoxLayout(group);
  row->addWidget(make(NumberField::LevelFrom, u"Text6"_s, u"から"_s, group));
  row->addWidget(new QLabel(u"～"_s, group));
  row->addWidget(make(NumberField::LevelTo, u"Text7"_s, u"まで"_s, group));
  row->addStretch(1);
  return group;
}

QGroupBox* NumbersPanel::makeLoads() {
  QGroupBox* group = makeGroup(u"最大読込数"_s);
  const QString words = u"単語・熟語"_s;
  const QString sentences = u"例文"_s;
  auto* row = new QHBoxLayout(group);
  row->addWidget(new QLabel(words, group));
  row->addWidget(make(NumberField::MaxLoadWords, u"Text9"_s, words, group));
  row->addWidget(new QLabel(sentences, group));
  row->addWidget(make(NumberField::MaxLoadSent, u"Text10"_s, sentences, group));
  row->addStretch(1);
  return group;
}

void NumbersPanel::addReview(QGridLayout* grid) {
  QGroupBox* group = makeGroup(u"復習周期の指定"_s);
  auto* row = new QHBoxLayout(group);
  row->addWidget(make(NumberField::ReviewCycle, u"Text8"_s, QString(), group));
  auto* none = new QLabel(u"復習周期 = 0の場合は復習をしない"_s, group);
  none->setWordWrap(true);
  row->addWidget(none, 1);
  auto* standard = standardButton(u"Command3"_s, group->title(), group);
  connect(standard, &QPushButton::clicked, this, [this] { m_rules.restoreReviewCycle(); });
  row->addWidget(standard);
  grid->addWidget(group, 1, 0);
}

void NumbersPanel::addTargets(QGridLayout* grid) {
  QGroupBox* group = makeGroup(u"目標回答時間の指定"_s);
  auto* rows = new QGridLayout(group);
  const auto addRow = [&](int row, const QString& caption, NumberField a, const QString& nameA,
                          NumberField b, const QString& nameB) {
    rows->addWidget(new QLabel(caption, group), row, 0);
    rows->addWidget(new QLabel(u"A"_s, group), row, 1);
    rows->addWidget(make(a, nameA, caption + u" A"_s, group), row, 2);
    rows->addWidget(new QLabel(u"B"_s, group), row, 3);
    rows->addWidget(make(b, nameB, caption + u" B"_s, group), row, 4);
  };
  addRow(0, u"例文"_s, NumberField::TargetSentA, u"Text11"_s, NumberField::TargetSentB,
         u"Text12"_s);
  addRow(1, u"単語・熟語"_s, NumberField::TargetWordA, u"Text13"_s, NumberField::TargetWordB,
         u"Text14"_s);
  auto* formula = new QLabel(u" =正解長 X A＋B"_s, group);
  formula->setToolTip(u"正解の文字数に A 秒を掛け、B 秒を加えた時間です。"_s);
  rows->addWidget(formula, 0, 5, Qt::AlignRight | Qt::AlignVCenter);
  auto* standard = standardButton(u"Command2"_s, group->title(), group);
  connect(standard, &QPushButton::clicked, this, [this] { m_rules.restoreTargets(); });
  rows->addWidget(standard, 1, 5, Qt::AlignRight);
  rows->setColumnStretch(5, 1);
  grid->addWidget(group, 2, 0);
}

}  // namespace tavoli
