// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "progress/ProgressReport.h"

class QChartView;
class QGridLayout;

namespace tavoli {

/// A course's page of the progress screen: six charts in two rows, and a note where there is one.
class ChartPage final : public QWidget {
  Q_OBJECT
 public:
  explicit ChartPage(const QString& note, QWidget* parent = nullptr);

  void showCharts(std::vector<BarChart> charts);

 protected:
  /// Charts take their colours and type when they are drawn, so that they are drawn again.
  void changeEvent(QEvent* event) override;

 private:
  void draw();

  std::vector<BarChart> m_charts;
  std::vector<QChartView*> m_views;
  QGridLayout* m_grid;
};

}  // namespace tavoli
