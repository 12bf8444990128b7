// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/screens/MessageLine.h"

#include "ui/screens/MarkedView.h"
#include "ui/screens/ScaledFont.h"

using namespace Qt::StringLiterals;

namespace tavoli {

MessageLine::MessageLine(QWidget* parent) : QLabel(parent) {
  setObjectName(u"RichTextBox5"_s);
  setWordWrap(true);
  setFont(scaled(font(), 1.2));
  setMinimumHeight(fontMetrics().lineSpacing() * 2);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void MessageLine::showMarked(const MarkedText& marked) {
  m_plain = marked.text;
  QString html;
  qsizetype from = 0;
  const auto escaped = [&](qsizetype end) {
    return marked.text.sliced(from, end - from).toHtmlEscaped().replace(u'\n', u"<br>"_s);
  };
  for (const MarkedText::Span& span : marked.spans) {
    const bool underlined = span.kind == MarkedText::Span::Kind::Underlined;
    html += escaped(span.offset);
    from = span.offset;
    const QString text = escaped(span.offset + span.length);
    html += underlined
                ? u"<u>"_s + text + u"</u>"_s
                : u"<b style='color:"_s + markColour(palette()).name() + u"'>"_s + text + u"</b>"_s;
    from = span.offset + span.length;
  }
  setTextFormat(marked.spans.empty() ? Qt::PlainText : Qt::RichText);
  setText(marked.spans.empty() ? marked.text : html + escaped(marked.text.size()));
}

}  // namespace tavoli
