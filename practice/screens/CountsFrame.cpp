// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/screens/CountsFrame.h"

#include <QHeaderView>
#include <QLayout>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr int rowCount = 4;

}  // namespace

CountsFrame::CountsFrame(QWidget* parent)
    : QGroupBox(u"練習回数（今回、今月）"_s, parent), m_table(new QTableWidget(rowCount, 3, this)) {
  m_table->setObjectName(u"MSFlexGrid1"_s);
  m_table->setAccessibleName(title());
  m_table->setHorizontalHeaderLabels({u"中学"_s, u"高校"_s, u"専門"_s});
  m_table->setVerticalHeaderLabels(
      {u"単語・熟語 今回"_s, u"単語・熟語 今月"_s, u"例文 今回"_s, u"例文 今月"_s});
  m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_table->setSelectionMode(QAbstractItemView::NoSelection);
  m_table->setFocusPolicy(Qt::NoFocus);
  m_table->setFrameShape(QFrame::NoFrame);
  m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  for (QHeaderView* header : {m_table->horizontalHeader(), m_table->verticalHeader()}) {
    header->setSectionResizeMode(QHeaderView::Fixed);
    header->setSectionsClickable(false);
  }
  const int line = fontMetrics().lineSpacing();
  m_table->horizontalHeader()->setMinimumSectionSize(3 * line);
  m_table->horizontalHeader()->setDefaultSectionSize(3 * line);
  m_table->verticalHeader()->setMinimumSectionSize(line + 4);
  m_table->verticalHeader()->setDefaultSectionSize(line + 4);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(4, 4, 4, 4);
  column->addWidget(m_table);
  column->addStretch(1);
  setLow(false);
  showCounts({});
}

void CountsFrame::setLow(bool low) {
  const auto height = [this](int rows) {
    return m_table->horizontalHeader()->sizeHint().height() +
           rows * m_table->verticalHeader()->defaultSectionSize();
  };
  m_table->setVerticalScrollBarPolicy(low ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
  m_table->setFixedWidth(m_table->verticalHeader()->sizeHint().width() +
                         m_table->horizontalHeader()->length() +
                         (low ? m_table->verticalScrollBar()->sizeHint().width() : 0));
  m_table->setMinimumHeight(height(low ? 1 : rowCount));
  m_table->setMaximumHeight(height(rowCount));
}

void CountsFrame::showCounts(const RunCounts& counts) {
  const std::array rows{counts.run.words, counts.month.words, counts.run.sentences,
                        counts.month.sentences};
  static_assert(rows.size() == rowCount);
  for (size_t row = 0; row < rows.size(); ++row)
    for (size_t column = 0; column < rows[row].size(); ++column) {
      auto* cell = new QTableWidgetItem(QString::number(rows[row][column]));
      cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      m_table->setItem(static_cast<int>(row), static_cast<int>(column), cell);
    }
}

}  // namespace tavoli
