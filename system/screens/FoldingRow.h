// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBoxLayout>
#include <QWidget>

namespace tavoli {

/// Parts beside each other, or one below the other where a window is too narrow for that. It asks
/// for no more width than its widest part needs.
class FoldingRow final : public QWidget {
 public:
  /// When the parts go below each other: where they would be narrower than they can be, or already
  /// where they would be narrower than they like.
  enum class Fold { BelowMinimum, BelowPreferred };
  explicit FoldingRow(QWidget* parent = nullptr, Fold fold = Fold::BelowMinimum);

  void add(QWidget* part, int stretch = 0) { m_parts->addWidget(part, stretch); }
  void setSpacing(int pixels) { m_parts->setSpacing(pixels); }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;

 private:
  /// The least width at which the parts stand beside each other.
  int widthInOneRow() const;
  void arrange();

  Fold m_fold;
  QBoxLayout* m_parts;
};

}  // namespace tavoli
