#pragma once

#include <QBoxLayout>
#include <QWidget>

namespace tavoli {

/// Parts beside each other, or one below the other where a window is too narrow for that. It asks
/// for no more width than its widest part.
class FoldingRow final : public QWidget {
 public:
  explicit FoldingRow(QWidget* parent = nullptr);

  void add(QWidget* part, int stretch = 0) { m_parts->addWidget(part, stretch); }
  void setSpacing(int pixels) { m_parts->setSpacing(pixels); }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;

 private:
  /// The width that all parts need beside each other.
  int widthInOneRow() const;
  void arrange();

  QBoxLayout* m_parts;
};

}  // namespace tavoli
