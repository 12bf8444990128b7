// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/screens/StatusPanels.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr int gap = 2;
constexpr int inset = 4;

const QString comparisonTip = u"クリックすると比較方法が変わります。"_s;

/// A framed label that ends in "…" where its text has no room.
class Panel final : public QLabel {
 public:
  explicit Panel(QWidget* parent) : QLabel(parent) {
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setTextFormat(Qt::PlainText);
  }

  int wantedWidth() const {
    constexpr int rounding = 2;  // a text is measured in whole pixels, and cut by parts of them
    return fontMetrics().horizontalAdvance(text()) + rounding + 2 * (inset + frameWidth());
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    drawFrame(&painter);
    const QRect inside = contentsRect().adjusted(inset, 0, -inset, 0);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(inside, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(text(), Qt::ElideRight, inside.width()));
  }
};

int wantedWidth(const QLabel* panel) {
  return static_cast<const Panel*>(panel)->wantedWidth();
}

}  // namespace

StatusPanels::StatusPanels(std::function<void()> nextComparison, QWidget* parent)
    : QWidget(parent), m_nextComparison(std::move(nextComparison)) {
  QFont smaller = font();
  smaller.setPointSizeF(smaller.pointSizeF() * 0.8);
  setFont(smaller);
  static const std::array<QString, panelCount> names{u"復習周期"_s, u"位置"_s,     u"比較方法"_s,
                                                     u"開始時刻"_s, u"休憩時間"_s, u"経過時間"_s,
                                                     u"練習回数"_s, u"出題順"_s};
  for (size_t i = 0; i < names.size(); ++i) {
    auto* made = new Panel(this);
    made->setObjectName(u"StatusBar1.Panel%1"_s.arg(i + 1));
    made->setAccessibleName(names[i]);
    made->hide();
    m_panels[i] = made;
  }
  QLabel* comparison = panel(StatusPanel::Comparison);
  comparison->setCursor(Qt::PointingHandCursor);
  comparison->installEventFilter(this);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void StatusPanels::showStatus(StatusPanel which, const QString& text) {
  QLabel* label = panel(which);
  // Times are shown at every key, and change once a minute.
  if (label->text() == text) return;
  label->setText(text);
  label->setToolTip(which == StatusPanel::Comparison ? text + u'\n' + comparisonTip : text);
  label->setAccessibleDescription(text);
  label->setVisible(!text.isEmpty());
  arrange();
}

QSize StatusPanels::minimumSizeHint() const {
  return {0, fontMetrics().height() + 2 * gap + 2};
}

void StatusPanels::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  arrange();
}

void StatusPanels::arrange() {
  std::vector<QLabel*> shown;
  std::vector<int> shared;
  int room = width();
  for (QLabel* label : m_panels) {
    if (label->text().isEmpty()) continue;
    shown.push_back(label);
    // The position is always whole; what is left is for the others.
    if (label == panel(StatusPanel::Position))
      room -= wantedWidth(label);
    else
      shared.push_back(wantedWidth(label));
  }
  room -= gap * static_cast<int>(shown.size() - 1);
  // The greatest width that lets all fit; shorter panels keep theirs.
  std::sort(shared.begin(), shared.end());
  int most = room;
  for (size_t i = 0; i < shared.size(); ++i) {
    const int share = std::max(0, room / static_cast<int>(shared.size() - i));
    most = std::max(share, shared[i]);
    if (shared[i] > share) {
      most = share;
      break;
    }
    room -= shared[i];
  }
  int left = 0;
  for (QLabel* label : shown) {
    const bool whole = label == panel(StatusPanel::Position);
    const int taken = whole ? wantedWidth(label) : std::min(wantedWidth(label), most);
    label->setGeometry(left, 0, taken, height());
    left += taken + gap;
  }
}

bool StatusPanels::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::MouseButtonRelease ||
      static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton)
    return QWidget::eventFilter(watched, event);
  m_nextComparison();
  return true;
}

}  // namespace tavoli
