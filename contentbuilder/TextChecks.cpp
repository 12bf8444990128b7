#include "contentbuilder/TextChecks.h"

#include "data/MarkedText.h"
#include "data/Text.h"

namespace tavoli {

QString separatorProblem(const QString& name, const QString& text) {
  for (const QChar mark : {fieldMark, elementMark}) {
    if (text.contains(mark))
      return QStringLiteral("%1に「%2」は使えません。別の文字に変えてください。").arg(name, mark);
  }
  return {};
}

QString markProblem(const QString& name, const QString& text) {
  if (!parseMarks(text).unpaired) return {};
  return QStringLiteral("%1の記号 [ ] { } が対になっていません。入れ子にせず、対で使ってください。")
      .arg(name);
}

}  // namespace tavoli
