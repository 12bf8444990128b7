// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/screens/TimeStrip.h"

#include <QPainter>

#include <algorithm>

#include "ui/screens/ScaledFont.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

const QColor timeUpColour(176, 0, 32);  // carries white letters on light and dark screens alike

}  // namespace

TimeStrip::TimeStrip(QWidget* parent) : QWidget(parent) {
  setFont(scaled(font(), 1.2));
  setAccessibleName(u"回答時間"_s);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void TimeStrip::showTime(const AnswerTime& time) {
  m_time = time;
  setAccessibleDescription(text());
  update();
}

QString TimeStrip::text() const {
  const QString seconds =
      m_time.running && m_time.seconds > 0 ? QString::number(m_time.seconds) : QString();
  return timeUp() ? u"時間切れ　"_s + seconds : seconds;
}

QSize TimeStrip::sizeHint() const {
  return {fontMetrics().height() * 12, fontMetrics().height() + 4};
}

QSize TimeStrip::minimumSizeHint() const {
  return {fontMetrics().horizontalAdvance(u"時間切れ　0000"_s), fontMetrics().height() + 4};
}

void TimeStrip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect inside = rect().adjusted(0, 0, -1, -1);
  painter.fillRect(inside, palette().base());
  if (m_time.running) {
    const double used = std::clamp(m_time.used, 0.0, 1.0);
    QRect filled = inside;
    filled.setWidth(static_cast<int>(inside.width() * used));
    const QColor bar = timeUp() ? timeUpColour : palette().color(QPalette::Highlight);
    painter.fillRect(filled, bar);
    // The figures are written twice, so that they can be read on both sides of the bar's end.
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(inside, Qt::AlignCenter, text());
    painter.setClipRect(filled);
    painter.fillRect(filled, bar);
    painter.setPen(timeUp() ? QColor(Qt::white) : palette().color(QPalette::HighlightedText));
    painter.drawText(inside, Qt::AlignCenter, text());
    painter.setClipping(false);
  }
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(inside);
}

}  // namespace tavoli
