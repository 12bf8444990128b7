// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextEdit>

#include "itemtext/MarkedText.h"

namespace tavoli {

/// The colour of marked text: a strong pink, lightened where the paper is dark.
QColor markColour(const QPalette& palette);

/// A read-only area that shows texts with their marks drawn. Its text can be selected and copied;
/// a click gives it no focus, so that the caret stays in the answer box.
class MarkedView : public QTextEdit {
  Q_OBJECT
 public:
  explicit MarkedView(QWidget* parent = nullptr);

  enum class Show { Top, End };
  /// Shows the text and brings its beginning or its end into view.
  void setMarkedText(const MarkedText& marked, Show show = Show::Top);
  const MarkedText& markedText() const { return m_marked; }

  /// A few lines; what is left of a window is shared out by its layout.
  QSize sizeHint() const override { return sizeOfLines(3); }
  QSize minimumSizeHint() const override { return sizeOfLines(1); }

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void drawSpans();
  QSize sizeOfLines(int lines) const;

  MarkedText m_marked;
};

}  // namespace tavoli
