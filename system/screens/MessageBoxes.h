// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "system/Dialogs.h"

namespace tavoli {

/// Message boxes over the active window.
class MessageBoxes final : public Dialogs {
 public:
  void show(const QString& text) override;
  bool ask(const QString& text) override;
};

}  // namespace tavoli
