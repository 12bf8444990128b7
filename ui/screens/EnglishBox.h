// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

namespace tavoli {

/// A box for English: without the input method, and with "～" on the key of "~" and on Shift
/// with 0.
class EnglishBox : public QLineEdit {
  Q_OBJECT
 public:
  explicit EnglishBox(QWidget* parent = nullptr);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace tavoli
