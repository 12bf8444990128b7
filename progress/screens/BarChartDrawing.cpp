// SPDX-License-Identifier: GPL-3.0-or-later

#include "progress/screens/BarChartDrawing.h"

#include <QBarCategoryAxis>
#include <QBarSet>
#include <QCategoryAxis>
#include <QGraphicsLayout>
#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>
#include <QLegend>
#include <QPainter>
#include <QStackedBarSeries>

#include <algorithm>
#include <cmath>

namespace tavoli {

namespace {

/// Memory states: green, amber and grey, apart in brightness too, on light and on dark. Months: two
/// blues.
const std::vector<QColor> memoryColors = {QColor(0x2e, 0x8b, 0x57), QColor(0xe0, 0xa0, 0x30),
                                          QColor(0x80, 0x88, 0x98)};
const std::vector<QColor> monthColors = {QColor(0x2f, 0x72, 0xb8), QColor(0x8f, 0xb8, 0xe0)};

/// The numbers' type is smaller than the program's of 11 points.
constexpr double smallShare = 9.0 / 11.0;

QFont scaled(QFont font, double share) {
  if (font.pixelSize() > 0)
    font.setPixelSize(std::max(1, qRound(font.pixelSize() * share)));
  else
    font.setPointSizeF(font.pointSizeF() * share);
  return font;
}

/// A series with one bar a column, each in a colour of its own: the sets of the other columns have
/// no height there.
QStackedBarSeries* barsOf(const BarChart& chart, QChart* drawn) {
  constexpr double barWidth = 0.6;
  const std::vector<QColor>& colors = chart.values.size() > 2 ? memoryColors : monthColors;
  auto* series = new QStackedBarSeries(drawn);
  series->setBarWidth(barWidth);
  for (size_t i = 0; i < chart.values.size(); ++i) {
    auto* set = new QBarSet(chart.columns[static_cast<qsizetype>(i)], series);
    for (size_t column = 0; column < chart.values.size(); ++column)
      *set << (column == i ? chart.values[i] : 0);
    set->setColor(colors[i]);
    set->setBorderColor(colors[i]);
    series->append(set);
  }
  drawn->addSeries(series);
  return series;
}

/// Writes the numbers above the bars, also where a bar has no height, and keeps them there.
void writeNumbers(const BarChart& chart, QChart* drawn, QAbstractSeries* series, const QFont& font,
                  const QBrush& ink) {
  std::vector<QGraphicsSimpleTextItem*> texts;
  for (const QString& number : chart.numbers) {
    texts.push_back(new QGraphicsSimpleTextItem(number, drawn));
    texts.back()->setFont(font);
    texts.back()->setBrush(ink);
    texts.back()->setZValue(1e6);  // above the plot
  }
  const auto place = [values = chart.values, texts, drawn, series] {
    for (size_t i = 0; i < texts.size(); ++i) {
      const QPointF top = drawn->mapToPosition({static_cast<double>(i), values[i]}, series);
      const QSizeF size = texts[i]->boundingRect().size();
      texts[i]->setPos(top - QPointF(size.width() / 2, size.height() + 1));
    }
  };
  QObject::connect(drawn, &QChart::plotAreaChanged, drawn, place);
}

}  // namespace

WholeAxis wholeAxis(double largest) {
  constexpr double room = 1.15;
  constexpr int steps = 5;
  const double wanted = std::max(1.0, largest * room);
  WholeAxis axis;
  for (qint64 power = 1;; power *= 10) {
    for (const int factor : {1, 2, 5}) {
      axis.step = static_cast<int>(factor * power);
      axis.top = axis.step * static_cast<int>(std::ceil(wanted / axis.step));
      if (axis.top / axis.step <= steps) return axis;
    }
  }
}

QChart* drawnChart(const BarChart& chart, const QPalette& palette, const QFont& font) {
  auto* drawn = new QChart;
  drawn->setObjectName(chart.name);
  const QBrush& ink = palette.brush(QPalette::Text);
  const QFont smallFont = scaled(font, smallShare);
  QAbstractSeries* series = barsOf(chart, drawn);

  auto* columns = new QBarCategoryAxis(drawn);
  columns->append(chart.columns);
  columns->setLabelsBrush(ink);
  columns->setLabelsFont(smallFont);
  columns->setGridLineVisible(false);
  const WholeAxis scale = wholeAxis(*std::max_element(chart.values.begin(), chart.values.end()));
  auto* values = new QCategoryAxis(drawn);
  values->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
  for (int value = 0; value <= scale.top; value += scale.step)
    values->append(groupedNumber(value), value);
  values->setRange(0, scale.top);
  values->setLabelsBrush(ink);
  values->setLabelsFont(smallFont);
  values->setGridLineColor(palette.color(QPalette::Mid));
  drawn->addAxis(columns, Qt::AlignBottom);
  drawn->addAxis(values, Qt::AlignLeft);
  series->attachAxis(columns);
  series->attachAxis(values);
  writeNumbers(chart, drawn, series, smallFont, ink);

  QFont titleFont = font;
  titleFont.setBold(true);
  drawn->setTitle(chart.title);
  drawn->setTitleFont(titleFont);
  drawn->setTitleBrush(ink);
  drawn->legend()->hide();
  drawn->setBackgroundBrush(palette.brush(QPalette::Base));
  drawn->setBackgroundRoundness(0);
  drawn->layout()->setContentsMargins(0, 0, 0, 0);
  drawn->setMargins(QMargins(2, 2, 2, 2));
  return drawn;
}

QImage chartPicture(const BarChart& chart, const QSizeF& twips) {
  // The chart is laid out in a window of this many units to the twip, and drawn larger.
  constexpr double unitsPerTwip = 1.0 / 10;
  constexpr int pixelsPerUnit = 4;
  constexpr int textUnits = 12;
  QPalette paper;
  paper.setColor(QPalette::Base, Qt::white);
  paper.setColor(QPalette::Text, Qt::black);
  paper.setColor(QPalette::Mid, Qt::lightGray);
  QFont font;
  font.setPixelSize(textUnits);

  const QSizeF size = twips * unitsPerTwip;
  QGraphicsScene scene;
  QChart* drawn = drawnChart(chart, paper, font);
  scene.addItem(drawn);
  // The heading of the page reaches into the first charts.
  constexpr double headingUnits = 12;
  drawn->layout()->setContentsMargins(0, headingUnits, 0, 0);
  drawn->resize(size);
  drawn->setAnimationOptions(QChart::NoAnimation);
  QImage picture((size * pixelsPerUnit).toSize(), QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  scene.render(&painter, QRectF(), QRectF(QPointF(), size));
  return picture;
}

}  // namespace tavoli
