// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>

#include "progress/ProgressReport.h"

namespace tavoli {

class PageSurface;

/// What stands on the printed report beside the figures.
struct ReportHeading {
  QString userId;
  QString specialTable;
  QDateTime time;
  /// 専門's charts in the place of 中学's.
  bool with専門 = false;
};

/// Draws the progress on one page: two courses' charts, and below them the tables.
void drawReport(PageSurface& page, const ProgressReport& report, const ReportHeading& heading);

}  // namespace tavoli
