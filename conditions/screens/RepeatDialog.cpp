#include "conditions/screens/RepeatDialog.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "system/screens/WindowTitle.h"

namespace tavoli {

namespace {

/// A number box that never holds anything but a number of its range, not even for the time of
/// typing: an entry that leaves the range is undone at once.
class RangeBox final : public QSpinBox {
 public:
  using QSpinBox::QSpinBox;

  void nameEdit(const QString& objectName, const QString& accessibleName) {
    lineEdit()->setObjectName(objectName);
    lineEdit()->setAccessibleName(accessibleName);
  }

 protected:
  QValidator::State validate(QString& text, int&) const override {
    bool numeric = false;
    const int value = text.toInt(&numeric);
    return numeric && value >= minimum() && value <= maximum() ? QValidator::Acceptable
                                                               : QValidator::Invalid;
  }
};

}  // namespace

RepeatDialog::RepeatDialog(const QString& title, const RepeatValue& word,
                           const RepeatValue& sentence, QWidget* parent)
    : QDialog(parent), m_word(word), m_sentence(sentence) {
  setWindowTitle(tavoli::windowTitle(title));
  // Wide enough for the title between the frame's buttons.
  setMinimumWidth(fontMetrics().horizontalAdvance(windowTitle() + QString(4, u'　')));
  auto* column = new QVBoxLayout(this);
  m_wordBox = addGroup(column, m_word, 1);
  m_sentenceBox = addGroup(column, m_sentence, 2);

  auto* ok = new QPushButton(QStringLiteral("ＯＫ"), this);
  ok->setObjectName(QStringLiteral("Command3"));
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &RepeatDialog::accept);
  auto* cancel = new QPushButton(QStringLiteral("キャンセル"), this);
  cancel->setObjectName(QStringLiteral("Command4"));
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  column->addStretch(1);
  column->addLayout(buttons);
  // The box that has the focus when the dialog opens is selected: the first key replaces its
  // number.
  m_wordBox->setFocus();
}

QSpinBox* RepeatDialog::addGroup(QBoxLayout* column, const RepeatValue& value, int number) {
  auto* group = new QGroupBox(value.caption, this);
  auto* box = new RangeBox(group);
  box->setObjectName(QStringLiteral("UpDown%1").arg(number));
  box->nameEdit(QStringLiteral("Text%1").arg(number), value.caption);
  box->setAccessibleName(value.caption);
  box->setRange(1, value.most);
  box->setValue(value.field);
  box->setInputMethodHints(Qt::ImhDigitsOnly);
  auto* range = new QLabel(QStringLiteral("回　（1～%1）").arg(value.most), group);
  auto* reset = new QPushButton(QStringLiteral("標準値に戻す"), group);
  reset->setObjectName(QStringLiteral("Command%1").arg(number));
  reset->setAccessibleName(value.caption + QStringLiteral("を標準値に戻す"));
  reset->setAutoDefault(false);
  connect(reset, &QPushButton::clicked, box,
          [box, standard = value.standard] { box->setValue(standard); });
  auto* row = new QHBoxLayout(group);
  row->addWidget(box);
  row->addWidget(range);
  row->addStretch(1);
  row->addWidget(reset);
  column->addWidget(group);
  return box;
}

void RepeatDialog::accept() {
  m_word.field = m_wordBox->value();
  m_sentence.field = m_sentenceBox->value();
  QDialog::accept();
}

}  // namespace tavoli
