// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "conditions/PracticeConditions.h"
#include "conditions/screens/RepeatDialog.h"

namespace tavoli {

/// The dialog for how often an answer is to be typed after it was asked for.
class TAVO6 final : public RepeatDialog {
  Q_OBJECT
 public:
  explicit TAVO6(PracticeConditions& conditions, QWidget* parent = nullptr);
};

}  // namespace tavoli
