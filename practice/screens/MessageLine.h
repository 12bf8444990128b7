// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

#include "itemtext/MarkedText.h"

namespace tavoli {

/// The place of the one-line messages, with room for two lines so that nothing jumps.
class MessageLine final : public QLabel {
  Q_OBJECT
 public:
  explicit MessageLine(QWidget* parent = nullptr);
  void showMarked(const MarkedText& marked);
  /// What is shown, without its marks.
  const QString& plainMessage() const { return m_plain; }

 private:
  QString m_plain;
};

}  // namespace tavoli
