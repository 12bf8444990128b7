// SPDX-License-Identifier: GPL-3.0-or-later

#include "progress/screens/TablesPage.h"

#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QScrollArea>

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr int tableCount = 4;
constexpr int fixedCells = 1;  // titles above and on the left

QTableWidgetItem* titleCell(const QString& text, const QPalette& palette) {
  auto* cell = new QTableWidgetItem(text);
  cell->setBackground(palette.brush(QPalette::Button));
  cell->setForeground(palette.brush(QPalette::ButtonText));
  return cell;
}

}  // namespace

TablesPage::TablesPage(QWidget* parent)
    : QWidget(parent),
      m_text1(new QLineEdit),
      m_top(new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Fixed)) {
  auto* content = new QWidget;
  auto* grids = new QVBoxLayout;
  for (int i = 0; i < tableCount; ++i) {
    auto* table = new QTableWidget(content);
    table->setObjectName(u"MSFlexGrid%1"_s.arg(i + 1));
    table->horizontalHeader()->hide();
    table->verticalHeader()->hide();
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->setFocusPolicy(Qt::NoFocus);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_grids.push_back(table);
    grids->addWidget(table, 0, Qt::AlignHCenter);
  }
  m_text1->setObjectName(u"Text1"_s);
  m_text1->setReadOnly(true);
  m_text1->setFocusPolicy(Qt::NoFocus);
  auto* label = new QLabel(u"専門DB"_s, content);
  label->setBuddy(m_text1);
  auto* special = new QHBoxLayout;
  special->addStretch(1);
  special->addWidget(label);
  special->addWidget(m_text1);
  special->addStretch(1);

  auto* column = new QVBoxLayout(content);
  column->addItem(m_top);
  column->addLayout(special);
  column->addLayout(grids);
  column->addStretch(1);

  auto* scroll = new QScrollArea;
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidget(content);
  scroll->setAccessibleName(u"中高専の表"_s);
  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(0, 0, 0, 0);
  page->addWidget(scroll);
}

void TablesPage::showTables(const std::vector<NumberTable>& tables, const QString& specialTable) {
  for (size_t i = 0; i < tables.size(); ++i) fill(*m_grids[i], tables[i]);
  m_text1->setText(specialTable);
  m_text1->setMinimumWidth(m_text1->fontMetrics().averageCharWidth() * 30);
}

void TablesPage::setTopMargin(int pixels) {
  m_top->changeSize(0, pixels, QSizePolicy::Minimum, QSizePolicy::Fixed);
  layout()->invalidate();
}

void TablesPage::fill(QTableWidget& grid, const NumberTable& table) {
  const QFontMetrics metrics = fontMetrics();
  const int cellWidth =
      metrics.horizontalAdvance(u"時間・コース別       "_s) + metrics.averageCharWidth();
  const int cellHeight = metrics.lineSpacing() * 5 / 4;
  const auto rows = static_cast<int>(table.rows.size()) + fixedCells;
  const auto columns = static_cast<int>(table.columns.size()) + fixedCells;
  grid.setAccessibleName(table.title.trimmed());
  grid.setRowCount(rows);
  grid.setColumnCount(columns);
  grid.horizontalHeader()->setDefaultSectionSize(cellWidth);
  grid.verticalHeader()->setMinimumSectionSize(cellHeight);
  grid.verticalHeader()->setDefaultSectionSize(cellHeight);
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      QTableWidgetItem* cell = nullptr;
      if (row == 0)
        cell = titleCell(column == 0 ? table.title : table.columns[column - fixedCells], palette());
      else if (column == 0)
        cell = titleCell(table.rows[row - fixedCells], palette());
      else
        cell = new QTableWidgetItem(table.cells[row - fixedCells][column - fixedCells]);
      cell->setTextAlignment(Qt::AlignVCenter | (column == 0 ? Qt::AlignLeft : Qt::AlignRight));
      grid.setItem(row, column, cell);
    }
  }
  const int frame = 2 * grid.frameWidth();
  grid.setFixedSize(columns * cellWidth + frame, rows * cellHeight + frame);
}

}  // namespace tavoli
