// SPDX-License-Identifier: GPL-3.0-or-later

#include "judge/Comparison.h"

#include <algorithm>

#include "data/Expansion.h"
#include "data/Text.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

/// What an input method types for a plain character.
QChar plainForm(QChar c) {
  constexpr char16_t fullWidthFirst = u'！';
  constexpr char16_t fullWidthLast = u'～';
  if (c.unicode() >= fullWidthFirst && c.unicode() <= fullWidthLast)
    return QChar(static_cast<char16_t>(c.unicode() - fullWidthFirst + u'!'));
  if (c == u'\u3000') return u' ';
  if (c == u'’' || c == u'‘') return u'\'';
  if (c == u'“' || c == u'”') return u'"';
  return c;
}

/// The typed text with plain characters for those that the expected text does not hold itself.
QString folded(QString typed, const QString& expected) {
  for (QChar& c : typed) {
    const QChar plain = plainForm(c);
    if (plain != c && !expected.contains(c)) c = plain;
  }
  return typed;
}

bool isMark(QChar c) {
  return c == u'.' || c == u'?' || c == u'!';
}

QString cased(const QString& text, const ComparisonSettings& settings) {
  return settings.compareMode == CompareMode::caseIgnored ? text.toLower() : text;
}

/// A text as it is compared: in lower case and normalised where the settings say so.
QString compared(const QString& text, const ComparisonSettings& settings) {
  const QString result = cased(text, settings);
  return settings.compareFlag ? NormaliseAnswer(result, settings) : result;
}

/// Whether what was typed is this text. An empty entry is none.
bool equals(const QString& typed, const QString& expected, const ComparisonSettings& settings) {
  const QString entry = compared(trimBlanks(folded(typed, expected)), settings);
  return !entry.isEmpty() && entry == compared(expected, settings);
}

/// Character i of the text from 1; a null character outside it.
QChar charAt(const QString& text, qsizetype i) {
  return i >= 1 && i <= text.size() ? text[i - 1] : QChar();
}

/// From the left: where the typed text T begins to differ from the answer A.
int findNGP(const QString& A, const QString& T, bool skipBlanks) {
  const auto longest = static_cast<int>(std::max(A.size(), T.size()));
  int NGP = 0;
  int j = 1;
  for (int i = 1; i <= longest; ++i) {
    NGP = i;
    if (!skipBlanks) {
      if (charAt(A, i) != charAt(T, i)) break;
      continue;
    }
    if (charAt(A, i) == u' ') continue;
    while (charAt(T, j) == u' ') ++j;
    if (j > T.size()) break;
    NGP = j;
    if (charAt(A, i) != charAt(T, j)) break;
    ++j;
    if (j > T.size()) break;
  }
  return NGP;
}

/// From the right: where the typed text T ends to differ from the answer A. `ranOut` tells that it
/// went through all of T.
int findNGP2(const QString& A, const QString& T, bool skipBlanks, bool& ranOut) {
  auto k = static_cast<int>(A.size());
  int NGP2 = 0;
  ranOut = true;
  for (auto i = static_cast<int>(T.size()); i >= 1; --i) {
    NGP2 = i;
    if (skipBlanks) {
      if (charAt(T, i) == u' ') continue;
      if (charAt(A, k) == u' ' && k >= 2) --k;
    }
    if (charAt(A, k) != charAt(T, i) || k < 2) {
      ranOut = false;
      break;
    }
    --k;
  }
  return NGP2;
}

/// The verdict on an entry that is neither the answer nor a variant of it.
void judgeDifference(Comparison& result, const QString& answer, bool marksCount,
                     const ComparisonSettings& settings) {
  const QString typed = folded(result.typedAnswer, answer);
  const QString A = compared(answer, settings);
  const QString T = compared(typed, settings);
  if (marksCount && !A.isEmpty() && !T.isEmpty() && isMark(A.back())) {
    if (T == A.chopped(1)) {
      result.ANScomp = Verdict::MarkMissing;
      return;
    }
    if (isMark(T.back()) && T.chopped(1) == A.chopped(1)) {
      result.ANScomp = Verdict::WrongMark;
      result.NGP = static_cast<int>(result.typedAnswer.size());
      result.NGP2 = result.NGP;
      return;
    }
  }
  result.ANScomp = Verdict::Wrong;
  bool ranOut = false;
  const QString casedAnswer = cased(answer, settings);
  const QString casedTyped = cased(typed, settings);
  result.NGP = findNGP(casedAnswer, casedTyped, settings.compareFlag);
  result.NGP2 = findNGP2(casedAnswer, casedTyped, settings.compareFlag, ranOut);
  if (!ranOut) result.NGP2 = std::max(result.NGP, result.NGP2);
}

void judgeSentence(Comparison& result, const SubQuestion& s, const ComparisonSettings& settings) {
  const std::vector<Variant> 同展開 = ExpandAnswers(s);
  for (size_t n = 0; n < 同展開.size(); ++n) {
    if (!equals(result.typedAnswer, 同展開[n].text, settings)) continue;
    result.ANScomp = Verdict::Variant;
    result.accepted = !同展開[n].literal;
    result.matchedVariant = result.accepted ? 0 : static_cast<int>(n) + 1;
    if (result.accepted) return;
  }
  if (result.ANScomp != Verdict::Variant) judgeDifference(result, s.正, true, settings);
}

}  // namespace

ComparisonSettings comparisonSettings(CompareMode compareMode, bool compareFlag) {
  return {compareMode, compareFlag, compareFlag};
}

const std::vector<ComparisonChoice>& comparisonChoices() {
  static const std::vector<ComparisonChoice> choices = {
      {{CompareMode::caseIgnored, false, false}, u"大文字＝小文字"_s, u"比較方法 ABCDE＝abcde"_s},
      {{CompareMode::caseMatters, false, false}, u"大文字≠小文字"_s, u"比較方法 ABCDE≠abcde"_s},
      {{CompareMode::caseIgnored, true, true},
       u"スペースと「-」を無視し、大文字＝小文字"_s,
       u"比較方法 A-BCDE＝ab  c  de"_s},
      {{CompareMode::caseMatters, true, true},
       u"スペースと「-」を無視し、大文字≠小文字"_s,
       u"比較方法 A-BCDE＝AB  C  DE"_s},
  };
  return choices;
}

int comparisonChoiceOf(const ComparisonSettings& settings) {
  return (settings.compareFlag ? 2 : 0) +
         (settings.compareMode == CompareMode::caseMatters ? 1 : 0);
}

QString NormaliseAnswer(const QString& text, const ComparisonSettings& settings) {
  QString normal = text;
  normal.remove(u' ');
  if (settings.compareHyphen) normal.remove(u'-');
  return normal;
}

QString CleanTypedAnswer(const QString& typed) {
  QString clean = storedSpelling(typed);
  clean = trimBlanks(clean.replace(u'\u3000', u' '));
  for (qsizetype i = 0; i + 1 < clean.size();) {
    if (clean[i] == u' ' && (clean[i + 1] == u',' || clean[i + 1] == u' '))
      clean.remove(i, 1);
    else
      ++i;
  }
  return clean;
}

Comparison COMP(const CurrentRecord& record, int k, const QString& typed,
                const ComparisonSettings& settings) {
  const QString& answer = record.sentence ? record.at(k).正 : record.英語;
  Comparison result;
  result.typedAnswer = trimBlanks(typed);
  if (equals(result.typedAnswer, answer, settings)) {
    result.ANScomp = Verdict::Right;
  } else if (record.sentence) {
    judgeSentence(result, record.at(k), settings);
  } else if (std::ranges::any_of(record.同, [&](const QString& synonym) {
               return equals(result.typedAnswer, synonym, settings);
             })) {
    result.ANScomp = Verdict::Variant;
  } else {
    judgeDifference(result, answer, false, settings);
  }
  return result;
}

void widenBlank(Comparison& c) {
  if (c.NGP != c.NGP2 || charAt(c.typedAnswer, c.NGP) != u' ') return;
  if (c.NGP >= 2) --c.NGP;
  if (c.NGP2 <= c.typedAnswer.size() - 1) ++c.NGP2;
}

}  // namespace tavoli
