// SPDX-License-Identifier: GPL-3.0-or-later

#include "system/screens/FoldingRow.h"

#include <QEvent>

#include <algorithm>

namespace tavoli {

FoldingRow::FoldingRow(QWidget* parent, Fold fold)
    : QWidget(parent), m_fold(fold), m_parts(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
  m_parts->setContentsMargins({});
}

QSize FoldingRow::sizeHint() const {
  return {widthInOneRow(), m_parts->sizeHint().height()};
}

QSize FoldingRow::minimumSizeHint() const {
  int widest = 0;
  for (int i = 0; i < m_parts->count(); ++i)
    widest = std::max(widest, m_parts->itemAt(i)->minimumSize().width());
  return {widest, m_parts->minimumSize().height()};
}

void FoldingRow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  arrange();
}

bool FoldingRow::event(QEvent* event) {
  // A part has changed what it needs.
  if (event->type() == QEvent::LayoutRequest) arrange();
  return QWidget::event(event);
}

int FoldingRow::widthInOneRow() const {
  int wanted = (m_parts->count() - 1) * m_parts->spacing();
  for (int i = 0; i < m_parts->count(); ++i) {
    const QLayoutItem* part = m_parts->itemAt(i);
    const QSize size = m_fold == Fold::BelowMinimum ? part->minimumSize() : part->sizeHint();
    wanted += size.width();
  }
  return wanted;
}

void FoldingRow::arrange() {
  const auto wanted = width() < widthInOneRow() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
  if (wanted == m_parts->direction()) return;
  m_parts->setDirection(wanted);
  updateGeometry();
}

}  // namespace tavoli
