// SPDX-License-Identifier: GPL-3.0-or-later

#include "progress/screens/ChartPage.h"

#include <QChartView>
#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QScrollArea>

#include <memory>
#include <utility>

#include "progress/screens/BarChartDrawing.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr int chartsARow = 3;

}  // namespace

ChartPage::ChartPage(const QString& note, QWidget* parent) : QWidget(parent) {
  auto* charts = new QWidget;
  m_grid = new QGridLayout(charts);
  m_grid->setContentsMargins({});
  auto* scroll = new QScrollArea(this);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidget(charts);
  scroll->setAccessibleName(u"グラフ"_s);
  auto* column = new QVBoxLayout(this);
  column->addWidget(scroll, 1);
  if (note.isEmpty()) return;
  auto* label = new QLabel(note, this);
  label->setWordWrap(true);
  column->addWidget(label);
}

void ChartPage::showCharts(std::vector<BarChart> charts) {
  m_charts = std::move(charts);
  draw();
}

void ChartPage::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) draw();
}

void ChartPage::draw() {
  for (size_t i = 0; i < m_charts.size(); ++i) {
    const auto place = static_cast<int>(i);
    if (i == m_views.size()) {
      m_views.push_back(new QChartView(this));
      m_views[i]->setFrameShape(QFrame::StyledPanel);
      m_views[i]->setRenderHint(QPainter::Antialiasing);
      m_views[i]->setFocusPolicy(Qt::NoFocus);
      // Smaller ones would have no room for their titles; the page scrolls instead.
      m_views[i]->setMinimumSize(fontMetrics().height() * QSize(13, 9));
      m_grid->addWidget(m_views[i], place / chartsARow, place % chartsARow);
    }
    // The view keeps its former chart, which has to go.
    const std::unique_ptr<QChart> former(m_views[i]->chart());
    m_views[i]->setChart(drawnChart(m_charts[i], palette(), font()));
    m_views[i]->setObjectName(m_charts[i].name);
    m_views[i]->setAccessibleName(m_charts[i].title);
    m_views[i]->setAccessibleDescription(m_charts[i].inWords());
  }
}

}  // namespace tavoli
