// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "practice/AnswerScreen.h"

namespace tavoli {

/// The strip that fills from the left as the target time of an answer passes.
class TimeStrip final : public QWidget {
  Q_OBJECT
 public:
  explicit TimeStrip(QWidget* parent = nullptr);

  void showTime(const AnswerTime& time);
  /// What stands in the strip; empty when no answer is timed.
  QString text() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool timeUp() const { return m_time.running && m_time.used >= 1; }

  AnswerTime m_time;
};

}  // namespace tavoli
