// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>
#include <QTableWidget>
#include <QWidget>

#include "progress/ProgressReport.h"

class QSpacerItem;

namespace tavoli {

/// The last page of the progress screen: four tables over all courses, and the name of the
/// specialist dictionary.
class TablesPage final : public QWidget {
  Q_OBJECT
 public:
  explicit TablesPage(QWidget* parent = nullptr);

  void showTables(const std::vector<NumberTable>& tables, const QString& specialTable);
  /// The free space above the tables, in pixels.
  void setTopMargin(int pixels);

 private:
  void fill(QTableWidget& grid, const NumberTable& table);

  std::vector<QTableWidget*> m_grids;
  QLineEdit* m_text1;
  QSpacerItem* m_top;
};

}  // namespace tavoli
