// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/AnswerNotation.h"

#include <algorithm>

#include "contentbuilder/TextChecks.h"
#include "data/Contractions.h"
#include "data/Text.h"

namespace tavoli {

namespace {

using Kind = Substitution::Kind;

const QString escapable = QStringLiteral("{}[]<>~/\\");
constexpr int maxTwoDigits = 99;
constexpr int maxAnswerLength = 999;

class AnswerParser {
 public:
  AnswerParser(const QString& notation, QStringList& problems)
      : m_notation(notation), m_problems(problems) {}

  AnswerLine parse() {
    m_givenOpen = m_notation.startsWith(u'<');
    for (m_at = m_givenOpen ? 1 : 0; m_at < m_notation.size(); ++m_at)
      if (!take(m_notation[m_at])) return m_line;
    if (!m_part.isNull())
      unpaired(m_part);
    else if (m_givenOpen)
      unpaired(u'<');
    return m_line;
  }

 private:
  /// False behind a mistake that makes the rest of the line unreadable.
  bool take(QChar c) {
    const bool inBraces = m_part == u'{';
    switch (c.unicode()) {
      case u'\\':
        return takeEscaped();
      case u'[':
      case u'{':
        return open(c);
      case u']':
        return m_part == u'[' ? closeOmission() : unpaired(c);
      case u'}':
        return inBraces ? closeBraces() : unpaired(c);
      case u'~':
      case u'/':
        if (inBraces) return takeSeparator(c);
        break;
      case u'>':
        if (m_givenOpen) return closeGiven();
        break;
      default:
        break;
    }
    append(c);
    return true;
  }

  bool takeEscaped() {
    ++m_at;
    if (m_at == m_notation.size() || !escapable.contains(m_notation[m_at])) {
      return wrong(
          QStringLiteral("「\\」は { } [ ] < > ~ / \\ の前にだけ置けます。"
                         "「\\」そのものは「\\\\」と書いてください。"));
    }
    append(m_notation[m_at]);
    return true;
  }

  void append(QChar c) { (m_texts.isEmpty() ? m_line.正 : m_texts.last()).append(c); }

  bool open(QChar c) {
    if (!m_part.isNull()) {
      return wrong(QStringLiteral("「%1」の中に「%2」があります。"
                                  "重なる部分は「或」の行に分けてください。")
                       .arg(m_part, c));
    }
    m_part = c;
    m_start = static_cast<int>(m_line.正.size()) + 1;
    return true;
  }

  bool takeSeparator(QChar c) {
    if (!m_texts.isEmpty() && (c == u'~' || m_separator == u'~')) {
      return wrong(
          QStringLiteral("{ } の中の「~」は一度だけで、「/」と一緒には使えません。"
                         "文字そのものなら「\\」を前に置いてください。"));
    }
    m_separator = c;
    m_texts.append(QString());
    return true;
  }

  bool closeOmission() { return add(Kind::Omission, 0, QString()) && endPart(); }

  bool closeBraces() {
    if (m_texts.isEmpty())
      return wrong(
          QStringLiteral("{ } の中に「~」も「/」もありません。"
                         "文字そのものなら「\\{」「\\}」と書いてください。"));
    if (m_separator == u'~') return addContraction(m_texts.first()) && endPart();
    for (const QString& text : std::as_const(m_texts)) {
      if (text.isEmpty()) return wrong(QStringLiteral("「/」の後ろの語句が空です。"));
      if (!add(Kind::Literal, 0, text)) return false;
    }
    return endPart();
  }

  bool addContraction(const QString& text) {
    const QString span = cutFrom(m_line.正, m_start);
    const bool byNumber = !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) {
      return c >= u'0' && c <= u'9';
    });
    const int code = byNumber ? numberOf(text) : contractionCode(span, text);
    if (contractionFits(code, span)) return add(Kind::Coded, code, contractionText(code));
    return wrong(
        byNumber ? QStringLiteral("短縮形の表の%1番は「%2」の代わりになりません。").arg(text, span)
                 : QStringLiteral("「%1」と「%2」の組は短縮形の表にありません。前後の空白も"
                                  "表のとおりに書くか、「/」を使ってください。")
                       .arg(span, text));
  }

  bool add(Kind kind, int code, const QString& text) {
    const int end = static_cast<int>(m_line.正.size());
    const bool insertion = end < m_start;
    if (insertion && kind != Kind::Literal)
      return wrong(QStringLiteral("印をつけた部分が空です。"));
    if (m_start > maxTwoDigits || (kind != Kind::Coded && end > maxTwoDigits)) {
      m_problems.append(
          QStringLiteral("印をつけた部分が答の99文字目より後ろにあります。答を短くしてください。"));
    }
    if (text.size() > maxTwoDigits)
      m_problems.append(QStringLiteral("「/」の後ろの語句は99文字までです。"));
    m_line.substitutions.push_back({kind, m_start, end, code, text});
    return true;
  }

  bool endPart() {
    m_part = QChar();
    m_texts.clear();
    return true;
  }

  bool closeGiven() {
    if (!m_part.isNull()) {
      return wrong(QStringLiteral("「<」「>」と「%1」が交差しています。「%1」の部分は「或」の行に"
                                  "分けてください。")
                       .arg(m_part));
    }
    m_givenOpen = false;
    m_line.先頭文字数 = static_cast<int>(m_line.正.size());
    if (m_line.先頭文字数 > maxTwoDigits)
      m_problems.append(QStringLiteral("「<」「>」で与える文字は99文字までです。"));
    return true;
  }

  bool unpaired(QChar c) {
    return wrong(QStringLiteral("「%1」に対応する記号がありません。"
                                "文字そのものなら「\\%1」と書いてください。")
                     .arg(c));
  }

  bool wrong(const QString& message) {
    m_problems.append(message);
    return false;
  }

  const QString& m_notation;
  QStringList& m_problems;
  qsizetype m_at = 0;
  AnswerLine m_line;
  bool m_givenOpen = false;
  QChar m_part;         ///< "[" or "{" while such a part is open
  int m_start = 0;      ///< its first character in the answer
  QChar m_separator;    ///< "~" or "/"
  QStringList m_texts;  ///< what stands behind the separators so far
};

/// A marked part of a line that is being written; a literal one may have several texts.
struct Span {
  Kind kind;
  int start;
  int end;
  QStringList texts;
};

using SpanLine = std::vector<Span>;

bool overlaps(const SpanLine& line, const Substitution& s) {
  return std::any_of(line.begin(), line.end(), [&](const Span& other) {
    return s.start <= other.end && other.start <= s.end;
  });
}

/// Deals the substitutions out to lines, such that those of a kind keep their order when the lines
/// are read one after the other.
std::vector<SpanLine> spanLines(const SubQuestion& answer) {
  std::vector<SpanLine> lines(1);
  Kind kind = Kind::Omission;
  size_t current = 0;
  int lastStart = 0;
  int lastEnd = 0;
  for (const Substitution& s : substitutionsOf(answer)) {
    const bool sameSpan = s.kind == kind && s.start == lastStart && s.end == lastEnd;
    if (sameSpan && kind == Kind::Literal) {
      lines[current].back().texts.append(s.text);
      continue;
    }
    if (s.kind != kind) {
      kind = s.kind;
      current = 0;
      lastStart = 0;
    }
    const auto fits = [&] {
      const int given = answer.先頭文字数;
      const bool crossesGiven = current == 0 && s.start <= given && s.end > given;
      return s.start > lastStart && !crossesGiven && !overlaps(lines[current], s);
    };
    while (!fits()) {
      if (++current == lines.size()) lines.emplace_back();
      lastStart = 0;
      if (lines[current].empty()) break;
    }
    QString text = s.text;
    if (kind == Kind::Coded &&
        contractionCode(cut(answer.正, s.start, s.end - s.start + 1), s.text) != s.code)
      text = QString::number(s.code);
    lines[current].push_back({kind, s.start, s.end, {text}});
    lastStart = s.start;
    lastEnd = s.end;
  }
  return lines;
}

class AnswerWriter {
 public:
  /// `given`: how many characters stand in "<" ">", 0 for none.
  QString write(const QString& 正, const SpanLine& line, int given) {
    m_line = given > 0 ? QStringLiteral("<") : QString();
    const auto length = static_cast<int>(正.size());
    for (int position = 1; position <= length + 1; ++position) {
      m_inGiven = position <= given;
      for (const Span& span : line) {
        if (span.start != position || span.end >= position) continue;
        open(span);
        close(span);
      }
      if (position > length) break;
      for (const Span& span : line)
        if (span.start == position && span.end >= position) open(span);
      append(正[position - 1]);
      for (const Span& span : line)
        if (span.end == position && span.start <= position) close(span);
      if (position == given) m_line += u'>';
    }
    return m_line;
  }

 private:
  void open(const Span& span) {
    m_inBraces = span.kind != Kind::Omission;
    m_line += m_inBraces ? u'{' : u'[';
  }

  void close(const Span& span) {
    if (!m_inBraces) {
      m_line += u']';
      return;
    }
    for (const QString& text : span.texts) {
      m_line += span.kind == Kind::Coded ? u'~' : u'/';
      for (const QChar c : text) append(c);
    }
    m_line += u'}';
    m_inBraces = false;
  }

  void append(QChar c) {
    const bool plain = ((c == u'~' || c == u'/') && !m_inBraces) || (c == u'>' && !m_inGiven) ||
                       (c == u'<' && !m_line.isEmpty());
    if (escapable.contains(c) && !plain) m_line += u'\\';
    m_line += c;
  }

  QString m_line;
  bool m_inBraces = false;
  bool m_inGiven = false;
};

/// What is wrong with an answer, beside its notation.
QStringList answerProblems(const AnswerLine& answer, const SubQuestion& packed) {
  QStringList problems;
  if (answer.正.isEmpty()) problems.append(QStringLiteral("答が空です。"));
  if (trimBlanks(answer.正) != answer.正)
    problems.append(QStringLiteral("答の始めか終わりに空白があります。空白を除いてください。"));
  if (answer.正.size() > maxAnswerLength) problems.append(QStringLiteral("答は999文字までです。"));
  const auto isOmission = [](const Substitution& s) { return s.kind == Kind::Omission; };
  if (std::ranges::count_if(answer.substitutions, isOmission) > 1) {
    problems.append(
        QStringLiteral("[ ] は一つの答に一度だけです。ほかの部分は、隣の語と合わせて"
                       "「{a red car/a car}」のように書いてください。"));
  }
  if (answer.substitutions.size() > maxExpandedSubstitutions) {
    problems.append(QStringLiteral("別の言い方が%1個あります。一つの答に%2個までです。")
                        .arg(answer.substitutions.size())
                        .arg(maxExpandedSubstitutions));
  } else if (!answer.substitutions.empty() && ExpandAnswers(packed).empty()) {
    problems.append(QStringLiteral("別の言い方の組み合わせが%1通りを超えます。減らしてください。")
                        .arg(maxVariants));
  }
  return problems;
}

}  // namespace

AnswerLine parseAnswerLine(const QString& notation, QStringList& problems) {
  AnswerLine line = AnswerParser(notation, problems).parse();
  const QString problem = separatorProblem(QStringLiteral("答"), notation);
  if (!problem.isEmpty()) problems.append(problem);
  return line;
}

SubQuestion packAnswer(const AnswerLine& answer, QStringList& problems) {
  SubQuestion packed;
  packed.正 = answer.正;
  packed.先頭文字数 = answer.先頭文字数;
  int coded = 0;
  int literal = 0;
  QString codedTail;
  QString literalTail;
  for (const Substitution& s : answer.substitutions) {
    switch (s.kind) {
      case Kind::Omission:
        packed.省略開始 = s.start;
        packed.省略終了 = s.end;
        break;
      case Kind::Coded:
        ++coded;
        codedTail += digits(s.start, 2) + digits(s.end - s.start + 1, 2) + digits(s.code, 3);
        break;
      case Kind::Literal:
        ++literal;
        literalTail += digits(s.start, 2) + digits(s.end, 2) +
                       digits(static_cast<int>(s.text.size()), 2) + s.text;
        break;
    }
  }
  packed.同 = digits(packed.省略開始, 2) + digits(packed.省略終了, 2) + digits(coded, 2) +
              digits(literal, 2) + codedTail + literalTail;
  problems.append(answerProblems(answer, packed));
  return packed;
}

QStringList answerNotation(const SubQuestion& answer) {
  QStringList notation;
  for (const SpanLine& line : spanLines(answer)) {
    const int given = notation.isEmpty() ? answer.先頭文字数 : 0;
    notation.append(AnswerWriter().write(answer.正, line, given));
  }
  return notation;
}

}  // namespace tavoli
