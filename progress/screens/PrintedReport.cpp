// SPDX-License-Identifier: GPL-3.0-or-later

#include "progress/screens/PrintedReport.h"

#include <QImage>
#include <QRectF>

#include <array>

#include "progress/screens/BarChartDrawing.h"
#include "system/PageSurface.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

// All in twips.
constexpr double chartWidth = 3500;
constexpr double chartHeight = 2500;
constexpr double chartsLeft = 800;
constexpr double chartsTop = 600;
constexpr int chartsARow = 3;
constexpr int chartRows = 4;
constexpr double headingLeft = 4000;
constexpr double headingTop = 500;
constexpr double tablesTop = chartRows * chartHeight + 300 + 600;
constexpr double rowPitch = 200;
constexpr double titleLeft = 2900;
constexpr std::array<double, 3> columnEnds = {5900, 7400, 8900};
constexpr double margin = 100;
constexpr double specialLeft = 8950;
constexpr int specialRow = 6;

void drawCharts(PageSurface& page, const std::vector<BarChart>& charts, int firstRow) {
  for (size_t i = 0; i < charts.size(); ++i) {
    const int row = firstRow + static_cast<int>(i) / chartsARow;
    const int column = static_cast<int>(i) % chartsARow;
    const QRectF rect(chartsLeft + column * chartWidth, chartsTop + row * chartHeight, chartWidth,
                      chartHeight);
    page.drawPicture(rect, chartPicture(charts[i], rect.size()));
  }
}

void drawFrame(PageSurface& page, double top, double bottom) {
  const double left = titleLeft - margin;
  const double right = columnEnds.back();
  for (const double y : {top, bottom}) page.drawLine(left, y, right, y);
  for (const double x : {left, right}) page.drawLine(x, top, x, bottom);
}

/// Returns where the table ends.
double drawTable(PageSurface& page, double top, const NumberTable& table) {
  double y = top;
  const auto drawRow = [&](const QString& title, const QStringList& cells) {
    page.drawText(titleLeft, y, title);
    for (size_t i = 0; i < columnEnds.size(); ++i) {
      const QString& cell = cells[static_cast<qsizetype>(i)];
      page.drawText(columnEnds[i] - margin - page.textWidth(cell), y, cell);
    }
    y += rowPitch;
  };
  drawRow(table.title, table.columns);
  for (int row = 0; row < table.rows.size(); ++row) drawRow(table.rows[row], table.cells[row]);
  // The characters fill the rows: the rule keeps off the first one.
  constexpr double gap = 20;
  drawFrame(page, top - gap, y);
  return y;
}

}  // namespace

void drawReport(PageSurface& page, const ProgressReport& report, const ReportHeading& heading) {
  constexpr double points = 10;
  page.setFont({PageFont::Face::Mincho, points});
  drawCharts(page, report.charts(heading.with専門 ? 専門 : 中学), 0);
  drawCharts(page, report.charts(高校), 2);
  page.drawText(
      headingLeft, headingTop,
      u"―― %1―― UID=%2"_s.arg(heading.time.toString(u"yyyy/MM/dd HH:mm:ss"_s), heading.userId));
  page.drawText(specialLeft, tablesTop + specialRow * rowPitch, heading.specialTable);
  double y = tablesTop;
  for (const NumberTable& table : report.printedTables()) y = drawTable(page, y, table) + margin;
}

}  // namespace tavoli
