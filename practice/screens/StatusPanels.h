// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

#include <array>
#include <functional>

#include "practice/PracticeScreen.h"

namespace tavoli {

/// The eight panels of the status line. Where they do not fit beside each other, the longest texts
/// are cut short; they never make the window wider.
class StatusPanels final : public QWidget {
  Q_OBJECT
 public:
  /// `nextComparison` is called when the panel of the comparison is clicked.
  explicit StatusPanels(std::function<void()> nextComparison, QWidget* parent = nullptr);

  /// A panel without a text is hidden.
  void showStatus(StatusPanel panel, const QString& text);

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override { return minimumSizeHint(); }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  static constexpr int panelCount = 8;

  QLabel* panel(StatusPanel which) { return m_panels[static_cast<size_t>(which) - 1]; }
  void arrange();

  std::function<void()> m_nextComparison;
  std::array<QLabel*, panelCount> m_panels{};
};

}  // namespace tavoli
