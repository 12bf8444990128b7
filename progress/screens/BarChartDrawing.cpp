#include "progress/screens/BarChartDrawing.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QGraphicsScene>
#include <QLegend>
#include <QPainter>
#include <QValueAxis>

#include <algorithm>
#include <cmath>

namespace tavoli {

namespace {

/// Green, amber and grey apart in brightness too, on light and on dark.
const QColor barColors[] = {QColor(0x2e, 0x8b, 0x57), QColor(0xe0, 0xa0, 0x30),
                            QColor(0x80, 0x88, 0x98)};

/// The legend's type and the numbers' are smaller than the program's of 11 points.
constexpr double legendShare = 9.0 / 11.0;

QFont scaled(QFont font, double share) {
  if (font.pixelSize() > 0)
    font.setPixelSize(std::max(1, qRound(font.pixelSize() * share)));
  else
    font.setPointSizeF(font.pointSizeF() * share);
  return font;
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
  QFont titleFont = font;
  titleFont.setBold(true);
  const QFont smallFont = scaled(font, legendShare);

  auto* series = new QBarSeries(drawn);
  constexpr double barWidth = 0.75;
  constexpr int labelDigits = 9;
  series->setBarWidth(barWidth);
  series->setLabelsVisible(true);
  series->setLabelsPosition(QAbstractBarSeries::LabelsOutsideEnd);
  series->setLabelsPrecision(labelDigits);
  for (int i = 0; i < chart.columns.size(); ++i) {
    constexpr double hundredths = 100;
    const double value = chart.values[static_cast<size_t>(i)];
    // A bar without height has no number on it: its legend says so.
    const QString legend = value > 0 ? chart.columns[i] : chart.columns[i] + QStringLiteral(" 0");
    auto* set = new QBarSet(legend, series);
    *set << (chart.inHours ? std::round(value * hundredths) / hundredths : value);
    set->setColor(barColors[i]);
    set->setBorderColor(barColors[i]);
    set->setLabelBrush(ink);
    set->setLabelFont(smallFont);
    series->append(set);
  }
  drawn->addSeries(series);

  auto* columns = new QBarCategoryAxis(drawn);
  columns->append(chart.inHours ? QStringLiteral("時間") : QStringLiteral("個数"));
  columns->setLabelsVisible(false);
  columns->setGridLineVisible(false);
  const WholeAxis scale = wholeAxis(*std::max_element(chart.values.begin(), chart.values.end()));
  auto* values = new QValueAxis(drawn);
  values->setRange(0, scale.top);
  values->setTickCount(scale.top / scale.step + 1);
  values->setLabelFormat(QStringLiteral("%d"));
  values->setLabelsBrush(ink);
  values->setLabelsFont(smallFont);
  values->setGridLineColor(palette.color(QPalette::Mid));
  drawn->addAxis(columns, Qt::AlignBottom);
  drawn->addAxis(values, Qt::AlignLeft);
  series->attachAxis(columns);
  series->attachAxis(values);

  drawn->setTitle(chart.title);
  drawn->setTitleFont(titleFont);
  drawn->setTitleBrush(ink);
  drawn->legend()->setAlignment(Qt::AlignBottom);
  drawn->legend()->setFont(smallFont);
  drawn->legend()->setLabelColor(palette.color(QPalette::Text));
  drawn->setBackgroundBrush(palette.brush(QPalette::Base));
  drawn->setBackgroundRoundness(0);
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
