// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "conditions/PracticeConditions.h"
#include "conditions/screens/RepeatDialog.h"

namespace tavoli {

/// The dialog for how often an item is practised when it is learnt for the first time.
class TAVO5 final : public RepeatDialog {
  Q_OBJECT
 public:
  explicit TAVO5(PracticeConditions& conditions, QWidget* parent = nullptr);
};

}  // namespace tavoli
