// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/TextChecks.h"

#include <algorithm>

#include "data/Text.h"
#include "itemtext/MarkedText.h"

namespace tavoli {

namespace {

const QString twoBlanks = QStringLiteral("  ");

QString blankProblem(const QString& name, const QString& text) {
  if (!text.contains(twoBlanks)) return {};
  return QStringLiteral("%1に空白が二つ続いています。一つにしてください。").arg(name);
}

bool isAscii(QChar c) {
  return c >= u' ' && c <= u'~';
}

/// A percent sign stands behind a digit and before anything but a letter.
bool isPercent(const QString& text, qsizetype at) {
  const QChar next = at + 1 < text.size() ? text[at + 1] : QChar(u' ');
  return at > 0 && text[at - 1].isDigit() && !(isAscii(next) && next.isLetter());
}

}  // namespace

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

QString lookalikeProblem(const QString& name, const QString& text) {
  static const QString curly = QStringLiteral("‘’“”");
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar c = text[i];
    if (c == u'｜')
      return QStringLiteral("%1に全角の「｜」があります。区切りなら半角の「|」にしてください。")
          .arg(name);
    if (c == u'%' && !isPercent(text, i))
      return QStringLiteral("%1に半角の「%」があります。改行なら全角の「％」にしてください。")
          .arg(name);
    if (curly.contains(c))
      return QStringLiteral("%1に「%2」があります。半角の「'」か「\"」にしてください。")
          .arg(name, c);
    if (c.category() == QChar::Mark_NonSpacing)
      return QStringLiteral(
                 "%1に「%2」のように分解された文字があります。一文字で入力しなおして"
                 "ください。")
          .arg(name, text.mid(std::max<qsizetype>(i - 1, 0), 2));
    if (c == QChar::Nbsp || c.category() == QChar::Other_Control ||
        c.category() == QChar::Other_Format)
      return QStringLiteral(
                 "%1に見えない文字（U+%2）があります。除くか、ふつうの空白にして"
                 "ください。")
          .arg(name, QString::number(c.unicode(), 16).toUpper().rightJustified(4, u'0'));
  }
  return {};
}

QString untypableWordProblem(const QString& name, const QString& text) {
  static const QString others = QStringLiteral("'.-&/, ～");
  for (const QChar c : text) {
    if (!others.contains(c) && !(isAscii(c) && c.isLetterOrNumber()))
      return QStringLiteral(
                 "%1に「%2」は使えません。半角の英数字、' . - & / 空白と「～」だけで"
                 "書いてください。")
          .arg(name, c);
  }
  return blankProblem(name, text);
}

QString untypableAnswerProblem(const QString& name, const QString& text) {
  for (const QChar c : text) {
    if (!isAscii(c))
      return QStringLiteral("%1に「%2」は使えません。半角の文字だけで書いてください。")
          .arg(name, c);
  }
  return blankProblem(name, text);
}

}  // namespace tavoli
