// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/screens/RepeatDialog.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "system/screens/WindowTitle.h"

using namespace Qt::StringLiterals;

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

  auto* ok = new QPushButton(u"ＯＫ"_s, this);
  ok->setObjectName(u"Command3"_s);
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &RepeatDialog::accept);
  auto* cancel = new QPushButton(u"キャンセル"_s, this);
  cancel->setObjectName(u"Command4"_s);
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
  box->setObjectName(u"UpDown%1"_s.arg(number));
  box->nameEdit(u"Text%1"_s.arg(number), value.caption);
  box->setAccessibleName(value.caption);
  box->setRange(1, value.most);
  box->setValue(value.field);
  box->setInputMethodHints(Qt::ImhDigitsOnly);
  auto* range = new QLabel(u"回　（1～%1）"_s.arg(value.most), group);
  auto* reset = new QPushButton(u"標準値に戻す"_s, group);
  reset->setObjectName(u"Command%1"_s.arg(number));
  reset->setAccessibleName(value.caption + u"を標準値に戻す"_s);
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
