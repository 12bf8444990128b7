// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProgressDialog>

#include <memory>

#include "system/LoadProgress.h"

namespace tavoli {

/// The progress window of a long load, with its Cancel button.
class TAVO7 final : public LoadProgress {
 public:
  explicit TAVO7(QWidget* parent) : m_parent(parent) {}
  void begin(int loadTotal) override;
  bool reached(int loadDone) override;
  void end() override { m_dialog.reset(); }

 private:
  QWidget* m_parent;
  std::unique_ptr<QProgressDialog> m_dialog;
};

}  // namespace tavoli
