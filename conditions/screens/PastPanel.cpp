#include "conditions/screens/PastPanel.h"

#include "conditions/ConditionsRules.h"
#include "conditions/ConditionsText.h"
#include "data/Text.h"

namespace tavoli {

PastPanel::PastPanel(ConditionsRules& rules, QWidget* parent)
    : QGroupBox(parent), m_runs(new QComboBox(this)), m_grid(new QGridLayout) {
  setObjectName(QStringLiteral("Frame2"));
  m_runs->setObjectName(QStringLiteral("Combo2"));
  m_runs->setAccessibleName(QStringLiteral("過去の練習条件"));
  m_runs->setPlaceholderText(QStringLiteral("過去の練習条件"));
  m_runs->setToolTip(QStringLiteral("過去の練習条件を選ぶと、下に表示します。"));
  connect(m_runs, &QComboBox::activated, this, [&rules](int index) { rules.choosePastRun(index); });

  addRow(QStringLiteral("コース"), QStringLiteral("Option10"));
  addRow(QStringLiteral("専門ＤＢ"), QStringLiteral("Text17"));
  addRow(QStringLiteral("練習対象"), QStringLiteral("Option1"));
  addRow(QStringLiteral("ファイル"), QStringLiteral("Text1"));
  addRow(QStringLiteral("最初の単語"), QStringLiteral("Label14"));
  addRow(QStringLiteral("最後の単語"), QStringLiteral("Label16"));
  addRow(QStringLiteral("最初の例文"), QStringLiteral("Label17"));
  addRow(QStringLiteral("最後の例文"), QStringLiteral("Label19"));
  addRow(QStringLiteral("開始英語"), QStringLiteral("Option2"));
  addRow(QStringLiteral("指定英語"), QStringLiteral("Label11"));
  addRow(QStringLiteral("記憶状態"), QStringLiteral("Option3"));
  auto* levels = new QHBoxLayout;
  levels->addWidget(makeValue(QStringLiteral("Text4")));
  levels->addWidget(new QLabel(QStringLiteral("～"), this));
  levels->addWidget(makeValue(QStringLiteral("Text5")));
  levels->addStretch(1);
  const int row = m_grid->rowCount();
  m_grid->addWidget(new QLabel(QStringLiteral("レベル"), this), row, 0);
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
