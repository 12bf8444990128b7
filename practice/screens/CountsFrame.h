// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGroupBox>
#include <QTableWidget>

#include "practice/PracticeScreen.h"

namespace tavoli {

/// How many questions were finished in this run, as a small table.
class CountsFrame final : public QGroupBox {
  Q_OBJECT
 public:
  explicit CountsFrame(QWidget* parent = nullptr);

  void showCounts(const RunCounts& counts);
  /// In a low window the table takes little height, and scrolls.
  void setLow(bool low);

 private:
  QTableWidget* m_table;
};

}  // namespace tavoli
