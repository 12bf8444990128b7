// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <vector>

#include "progress/ProgressCounters.h"

namespace tavoli {

/// A whole number in words, its thousands divided by commas.
QString groupedNumber(int value);

/// A bar chart of two or three numbers.
struct BarChart {
  QString name;  ///< the chart's name on the screen
  QString title;
  QStringList columns;
  std::vector<double> values;  ///< one a column; hours, or whole numbers
  QStringList numbers;         ///< the values as they are written
  bool inHours = false;

  /// The chart in words, for those who cannot see it.
  QString inWords() const;
};

/// A table of numbers, already in words.
struct NumberTable {
  QString title;  ///< stands in the corner
  QStringList columns;
  QStringList rows;
  QList<QStringList> cells;  ///< of each row, as many as columns
};

/// What the progress screen and the printed report show, worked out from the counters.
class ProgressReport {
 public:
  explicit ProgressReport(const ProgressCounters& counters) : m_counters(counters) {}

  /// The six charts of a course's page, row by row, three in a row.
  std::vector<BarChart> charts(Level level) const;
  /// The four tables over all courses: memory, time, counts by course, counts by dictionary.
  std::vector<NumberTable> tables() const;
  /// The same tables with the titles that they bear on paper.
  std::vector<NumberTable> printedTables() const;

 private:
  /// The tables under titles in the form of format strings.
  std::vector<NumberTable> filled(const std::array<QString, 4>& titles) const;

  const ProgressCounters& m_counters;
};

}  // namespace tavoli
