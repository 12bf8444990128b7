// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/screens/LookUpPane.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QToolButton>

#include "ui/screens/EnglishBox.h"

using namespace Qt::StringLiterals;

namespace tavoli {

LookUpPane::LookUpPane(int index, const QString& heading, LookUp& dictionary, QWidget* parent)
    : QWidget(parent),
      m_dictionary(dictionary),
      m_word(new EnglishBox(this)),
      m_entry(new WordView(this)) {
  m_word->setObjectName(u"Text3(%1)"_s.arg(index));
  m_word->setAccessibleName(heading + u"で調べる語"_s);
  m_word->setMinimumWidth(m_word->fontMetrics().averageCharWidth() * 8);
  m_word->installEventFilter(this);
  connect(m_word, &QLineEdit::textChanged, this,
          [this](const QString& text) { showResult(m_dictionary.find(text)); });

  m_entry->setObjectName(u"RichTextBox3(%1)"_s.arg(index));
  m_entry->setAccessibleName(heading + u"の説明"_s);
  m_entry->installEventFilter(this);
  connect(m_entry, &WordView::wordClicked, this, &LookUpPane::wordClicked);
  if (index == 1) showResult(plainText(u"マウスでクリック又は選択した英語の説明を表示します。"_s));

  auto* label = new QLabel(heading, this);
  label->setObjectName(u"Label3(%1)"_s.arg(index));
  label->setTextFormat(Qt::PlainText);
  label->setToolTip(heading);
  label->setMinimumWidth(label->fontMetrics().averageCharWidth() * 4);
  label->setBuddy(m_word);
  auto* row = new QHBoxLayout;
  row->addWidget(label);
  row->addWidget(m_word, 1);
  row->addWidget(buildUpDown(index, heading));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addLayout(row);
  column->addWidget(m_entry, 1);
}

QWidget* LookUpPane::buildUpDown(int index, const QString& heading) {
  auto* upDown = new QWidget(this);
  upDown->setObjectName(u"UpDown1(%1)"_s.arg(index));
  auto* row = new QHBoxLayout(upDown);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  const auto add = [&](Qt::ArrowType arrow, const QString& tip, bool back) {
    auto* button = new QToolButton(upDown);
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAccessibleName(heading + u"の"_s + tip);
    button->setToolTip(tip);
    connect(button, &QToolButton::clicked, this, [this, back] { stepEntry(back); });
    row->addWidget(button);
  };
  add(Qt::UpArrow, u"前の語"_s, true);
  add(Qt::DownArrow, u"次の語"_s, false);
  return upDown;
}

void LookUpPane::setWord(const QString& word) {
  // After stepping, the same word again leads back to its entry.
  if (m_word->text() == word)
    showResult(m_dictionary.find(word));
  else
    m_word->setText(word);
}

void LookUpPane::stepEntry(bool back) {
  showResult(back ? m_dictionary.previous() : m_dictionary.next());
}

void LookUpPane::showResult(const std::optional<MarkedText>& entry) {
  if (entry) m_entry->setMarkedText(*entry);
}

bool LookUpPane::keyPressed(const QObject* watched, const QKeyEvent& event) {
  const int key = event.key();
  if (watched == m_entry && key == Qt::Key_F11) {
    if (!event.isAutoRepeat()) m_entry->pickWord();
    return true;
  }
  if (watched != m_word || (key != Qt::Key_Up && key != Qt::Key_Down)) return false;
  stepEntry(key == Qt::Key_Up);
  return true;
}

bool LookUpPane::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && keyPressed(watched, *static_cast<QKeyEvent*>(event)))
    return true;
  return QWidget::eventFilter(watched, event);
}

}  // namespace tavoli
