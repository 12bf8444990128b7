// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/screens/AnswerAreas.h"

#include <QAccessible>

#include <utility>

#include "lookup/screens/LookUpPane.h"
#include "lookup/screens/WordView.h"
#include "practice/screens/AnswerBox.h"
#include "practice/screens/MessageLine.h"
#include "practice/screens/TimeStrip.h"
#include "ui/screens/ScaledFont.h"
#include "ui/screens/TextMenu.h"

using namespace Qt::StringLiterals;

namespace tavoli {

QSplitter* openSplitter(Qt::Orientation orientation, QWidget* parent) {
  auto* made = new QSplitter(orientation, parent);
  made->setChildrenCollapsible(false);
  return made;
}

void addPart(QSplitter* splitter, QWidget* part, const QString& name) {
  splitter->addWidget(part);
  splitter->handle(splitter->indexOf(part))->setAccessibleName(name + u"の境"_s);
}

AnswerAreas::AnswerAreas(QMainWindow& window)
    : heading(new QLabel(&window)),
      time(new TimeStrip(&window)),
      question(new WordView(&window)),
      answer(new AnswerBox(&window)),
      message(new MessageLine(&window)),
      fullAnswer(new WordView(&window)),
      m_window(window),
      m_lookUps(openSplitter(Qt::Horizontal, &window)) {
  const auto name = [](QWidget* area, const QString& objectName, const QString& accessibleName) {
    area->setObjectName(objectName);
    area->setAccessibleName(accessibleName);
  };
  heading->setObjectName(u"Label1"_s);
  time->setObjectName(u"Picture1"_s);
  name(question, u"RichTextBox4"_s, u"問題"_s);
  name(answer, u"Text2"_s, u"回答"_s);
  name(fullAnswer, u"RichTextBox2"_s, u"正解と説明"_s);
  question->setFont(scaled(window.font(), 1.5));
  fullAnswer->setFont(scaled(window.font(), 1.3));
  for (const WordView* area : {question, fullAnswer})
    QObject::connect(area, &WordView::wordClicked, &window,
                     [this](const QString& word) { lookUp(word); });
  m_describing.setSingleShot(true);
  QObject::connect(&m_describing, &QTimer::timeout, &window, [this] { tellAnswer(); });
}

AnswerAreas::~AnswerAreas() {
  // The box loses the focus when it goes, and nobody is to hear of it any more.
  answer->disconnect(&m_window);
}

void AnswerAreas::arrange(QLayout* questionRow, QWidget* explanations, QWidget* keys) {
  auto* head = new QHBoxLayout;
  head->addWidget(heading);
  head->addWidget(time, 1);
  auto* label = new QLabel(u"回答"_s, &m_window);
  label->setObjectName(u"Label2"_s);
  label->setBuddy(answer);
  auto* answerRow = new QHBoxLayout;
  answerRow->addWidget(label);
  answerRow->addWidget(answer, 1);

  m_rows = openSplitter(Qt::Vertical, &m_window);
  auto* asking = new QWidget;
  auto* askingColumn = new QVBoxLayout(asking);
  askingColumn->setContentsMargins(0, 0, 0, 0);
  askingColumn->addLayout(questionRow, 1);
  askingColumn->addLayout(answerRow);
  askingColumn->addWidget(message);
  message->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  addPart(m_rows, asking, u"問題と回答"_s);
  addPart(m_rows, explanations, u"正解と説明"_s);
  addPart(m_rows, m_lookUps, u"辞書"_s);
  m_rows->setStretchFactor(0, 3);
  m_rows->setStretchFactor(1, 4);
  m_rows->setStretchFactor(2, 3);

  auto* centre = new QWidget(&m_window);
  auto* column = new QVBoxLayout(centre);
  column->addLayout(head);
  column->addWidget(m_rows, 1);
  column->addWidget(keys);
  m_window.setCentralWidget(centre);
  m_textMenu = new TextMenu(&m_window);
  m_textMenu->serve(&m_window);
}

void AnswerAreas::addLookUp(const QString& dictionaryHeading, LookUp& dictionary) {
  auto* pane = new LookUpPane(static_cast<int>(m_panes.size()), dictionaryHeading, dictionary);
  addPart(m_lookUps, pane, dictionaryHeading);
  QObject::connect(pane, &LookUpPane::wordClicked, &m_window,
                   [this](const QString& word) { lookUp(word); });
  m_textMenu->serve(pane);
  m_panes.append(pane);
}

void AnswerAreas::tellAnswer() {
  const QString& asked = question->markedText().text;
  QStringList told = {message->plainMessage(), fullAnswer->markedText().text};
  told.removeAll(QString());
  // A key takes the verdict from the screen; it is the last one until the next question all the
  // same.
  if (!told.isEmpty() || asked != m_describedQuestion) m_verdict = told.join(u'\n');
  m_describedQuestion = asked;
  QStringList parts = {asked, answer->hint(), m_verdict};
  parts.removeAll(QString());
  const QString description = parts.join(u'\n');
  if (description == answer->accessibleDescription()) return;
  answer->setAccessibleDescription(description);
  QAccessibleEvent alert(answer, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

bool AnswerAreas::low() const {
  constexpr int enoughLines = 30;
  return m_window.height() < enoughLines * m_window.fontMetrics().lineSpacing();
}

void AnswerAreas::fitHeight() {
  m_lookUps->setVisible(m_lookedUp || !low());
  if (low() == std::exchange(m_low, low())) return;
  message->setMinimumHeight((m_low ? 1 : 2) * message->fontMetrics().lineSpacing());
  if (m_low) m_rows->setSizes({3, 1, 1});
}

void AnswerAreas::lookUp(const QString& text) {
  m_lookedUp = true;
  fitHeight();
  for (LookUpPane* pane : std::as_const(m_panes)) pane->setWord(text);
}

}  // namespace tavoli
