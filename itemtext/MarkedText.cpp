// SPDX-License-Identifier: GPL-3.0-or-later

#include "itemtext/MarkedText.h"

namespace tavoli {

MarkedText parseMarks(const QString& marked) {
  MarkedText result;
  QChar opening;  // the mark that waits for its partner
  qsizetype openedAt = 0;
  for (const QChar c : marked) {
    if (c == u'％') {
      result.text += u'\n';
    } else if (c != u'[' && c != u']' && c != u'{' && c != u'}') {
      result.text += c;
    } else if (opening.isNull()) {
      opening = c;
      openedAt = result.text.size();
    } else {
      const bool underline = opening == u'[' && c == u']';
      const bool colour = opening == u'{' && c == u'}';
      if (underline || colour) {
        result.spans.push_back(
            {underline ? MarkedText::Span::Kind::Underlined : MarkedText::Span::Kind::Coloured,
             openedAt, result.text.size() - openedAt});
      } else {
        result.unpaired = true;
      }
      opening = QChar();
    }
  }
  result.unpaired = result.unpaired || !opening.isNull();
  return result;
}

MarkedText plainText(const QString& text) {
  return {text, {}, false};
}

}  // namespace tavoli
