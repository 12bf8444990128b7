// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QChart>
#include <QFont>
#include <QImage>
#include <QPalette>

#include "progress/ProgressReport.h"

namespace tavoli {

/// A chart in Qt's terms: a bar a column with its number on it and its title below it, and an axis
/// of whole numbers from 0. The caller owns it.
QChart* drawnChart(const BarChart& chart, const QPalette& palette, const QFont& font);

/// The chart as a picture for paper: black on white, for a place of that many twips.
QImage chartPicture(const BarChart& chart, const QSizeF& twips);

/// The axis for values of 0 to `largest`: its top, with room for a number above the bar, and its
/// step, both whole.
struct WholeAxis {
  int top = 1;
  int step = 1;
};
WholeAxis wholeAxis(double largest);

}  // namespace tavoli
