// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/screens/LogView.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QLayout>
#include <QTextBlock>

#include "lookup/screens/WordView.h"

using namespace Qt::StringLiterals;

namespace tavoli {

LogView::LogView(QWidget* parent) : QWidget(parent) {
  m_text = new WordView(this);
  m_text->setObjectName(u"RichTextBox1"_s);
  m_text->setAccessibleName(u"練習経過"_s);
  m_text->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_text->viewport()->installEventFilter(this);
  m_lines = new QScrollBar(Qt::Vertical, this);
  m_lines->setObjectName(u"VScroll1"_s);
  m_lines->setAccessibleName(u"練習経過の行"_s);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  row->addWidget(m_text);
  row->addWidget(m_lines);
  connect(m_text, &WordView::wordClicked, this, &LogView::wordClicked);
  connect(m_lines, &QScrollBar::valueChanged, this, &LogView::showFrom);
  hide();
}

void LogView::showLog(const QStringList& runLog, bool shown) {
  const auto length = static_cast<int>(runLog.size());
  m_lines->setMaximum(length);
  m_lines->setValue(length);
  m_text->setMarkedText(plainText(shown ? runLog.join(u'\n') : QString()));
  setVisible(shown);
  showFrom(length);
}

void LogView::showFrom(int line) {
  QScrollBar* pixels = m_text->verticalScrollBar();
  const QTextBlock block = m_text->document()->findBlockByNumber(line);
  if (!block.isValid()) {
    pixels->setValue(pixels->maximum());
    return;
  }
  const QRectF place = m_text->document()->documentLayout()->blockBoundingRect(block);
  pixels->setValue(static_cast<int>(place.top()));
}

void LogView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  showFrom(m_lines->value());
}

bool LogView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Wheel) return QWidget::eventFilter(watched, event);
  QCoreApplication::sendEvent(m_lines, event);
  return true;
}

}  // namespace tavoli
