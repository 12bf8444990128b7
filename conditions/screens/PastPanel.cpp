// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/screens/PastPanel.h"

#include "conditions/ConditionsRules.h"
#include "conditions/ConditionsText.h"
#include "data/Text.h"

using namespace Qt::StringLiterals;

namespace tavoli {

PastPanel::PastPanel(ConditionsRules& rules, QWidget* parent)
    : QGroupBox(parent), m_runs(new QComboBox(this)), m_grid(new QGridLayout) {
  setObjectName(u"Frame2"_s);
  m_runs->setObjectName(u"Combo2"_s);
  m_runs->setAccessibleName(u"過去の練習条件"_s);
  m_runs->setPlaceholderText(u"過去の練習条件"_s);
  m_runs->setToolTip(u"過去の練習条件を選ぶと、下に表示します。"_s);
  connect(m_runs, &QComboBox::activated, this, [&rules](int index) { rules.choosePastRun(index); });

  addRow(u"コース"_s, u"Option10"_s);
  addRow(u"専門ＤＢ"_s, u"Text17"_s);
  addRow(u"練習対象"_s, u"Option1"_s);
  addRow(u"ファイル"_s, u"Text1"_s);
  addRow(u"最初の単語"_s, u"Label14"_s);
  addRow(u"最後の単語"_s, u"Label16"_s);
  addRow(u"最初の例文"_s, u"Label17"_s);
  addRow(u"最後の例文"_s, u"Label19"_s);
  addRow(u"開始英語"_s, u"Option2"_s);
  addRow(u"指定英語"_s, u"Label11"_s);
  addRow(u"記憶状態"_s, u"Option3"_s);
  auto* levels = new QHBoxLayout;
  levels->addWidget(makeValue(u"Text4"_s));
  levels->addWidget(new QLabel(u"～"_s, this));
  levels->addWidget(makeValue(u"Text5"_s));
  levels->addStretch(1);
  const int row = m_grid->rowCount();
  m_grid->addWidget(new QLabel(u"レベル"_s, this), row, 0);
  m_grid->addLayout(levels, row, 1);
  m_grid->setColumnStretch(1, 1);
  auto* column = new QVBoxLayout(this);
  column->addWidget(m_runs);
  column->addLayout(m_grid);
  column->addStretch(1);
}

QLabel* PastPanel::makeValue(const QString& name) {
  auto* value = new QLabel(this);
  value->setObjectName(name);
  value->setTextFormat(Qt::PlainText);
  return value;
}

void PastPanel::addRow(const QString& caption, const QString& name) {
  QLabel* value = makeValue(name);
  value->setWordWrap(true);
  auto* title = new QLabel(caption, this);
  m_captions[value] = title;
  const int row = m_grid->rowCount();
  m_grid->addWidget(title, row, 0, Qt::AlignLeft | Qt::AlignTop);
  m_grid->addWidget(value, row, 1);
}

void PastPanel::list(const QStringList& entries) {
  m_runs->clear();
  m_runs->addItems(entries);
  m_runs->setCurrentIndex(static_cast<int>(entries.size()) - 1);
}

void PastPanel::show(const char* name, const QString& value, int characters) {
  auto* label = findChild<QLabel*>(QLatin1String(name));
  const bool tooLong = characters > 0 && value.size() > characters;
  label->setText(tooLong ? value.left(characters) + u'…' : value);
  label->setToolTip(tooLong ? value : QString());
  const auto caption = m_captions.constFind(label);
  if (caption == m_captions.cend()) return;
  label->setVisible(!value.isEmpty());
  (*caption)->setVisible(!value.isEmpty());
}

void PastPanel::showRun(const QString& caption, const PastRun& run) {
  constexpr int endsWidth = 11;
  constexpr int startWidth = 12;
  const Material material = materialOf(run.selMethod);
  const auto when = [](bool shown, const QString& text) { return shown ? text : QString(); };
  setTitle(caption);
  show("Option10", courseName(run.COURSE));
  show("Text17", when(run.COURSE == Course::専門, run.specialTable));
  show("Option1", methodName(run.selMethod));
  show("Text1", when(material == Material::lesson, run.lessonFile));
  // Before the first run the record holds placeholders.
  const PracticeConditions unused;
  const QString first = when(run.firstEnglish != unused.firstEnglish, run.firstEnglish);
  const QString last = when(run.lastEnglish != unused.lastEnglish, run.lastEnglish);
  show("Label14", when(material == Material::words, first), endsWidth);
  show("Label16", when(material == Material::words, last), endsWidth);
  show("Label17", when(material == Material::sentences, first), endsWidth);
  show("Label19", when(material == Material::sentences, last), endsWidth);
  show("Option2", startModeName(run.startMode));
  show("Label11", when(run.startMode == StartMode::named, run.startEnglish), startWidth);
  show("Option3", memorySelectName(run.memorySelect));
  show("Text4", QString::number(numberOf(run.levelFrom)));
  show("Text5", QString::number(numberOf(run.levelTo)));
}

}  // namespace tavoli
