// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace tavoli {

/// Boxes that stop the flow until the learner answers.
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  /// Shows a text with an OK button.
  virtual void show(const QString& text) = 0;
  /// Asks with Yes and No; true for Yes.
  virtual bool ask(const QString& text) = 0;
};

}  // namespace tavoli
