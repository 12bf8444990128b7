#pragma once

#include <QTextEdit>

#include "data/MarkedText.h"

namespace tavoli {

/// A read-only area that shows texts with their marks drawn.
class MarkedView : public QTextEdit {
  Q_OBJECT
 public:
  explicit MarkedView(QWidget* parent = nullptr);

  enum class Show { Top, End };
  /// Shows the text and brings its beginning or its end into view.
  void setMarkedText(const MarkedText& marked, Show show = Show::Top);
};

}  // namespace tavoli
