// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/screens/MarkedView.h"

namespace tavoli {

/// A read-only area whose English words can be picked with the mouse.
class WordView final : public MarkedView {
  Q_OBJECT
 public:
  using MarkedView::MarkedView;

  /// Reports the word that is selected or stands at the caret, if there is one.
  void pickWord();

 Q_SIGNALS:
  void wordClicked(const QString& word);

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
};

}  // namespace tavoli
