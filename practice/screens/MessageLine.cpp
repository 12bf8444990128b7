#include "practice/screens/MessageLine.h"

#include "practice/screens/ScaledFont.h"

namespace tavoli {

MessageLine::MessageLine(QWidget* parent) : QLabel(parent) {
  setObjectName(QStringLiteral("RichTextBox5"));
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setFont(scaled(font(), 1.2));
  setMinimumHeight(fontMetrics().lineSpacing() * 2);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

}  // namespace tavoli
