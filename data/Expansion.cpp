// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/Expansion.h"

#include <algorithm>

#include "data/Contractions.h"
#include "data/Text.h"

namespace tavoli {

namespace {

struct Growing {
  Variant variant;
  /// How much longer the text is than the answer, all of it left of `lastEnd`.
  int difference = 0;
  /// First and last position of the answer that the last substitution has taken.
  int lastStart = 0;
  int lastEnd = 0;

  /// Whether a substitution lies behind all that this form has taken. Of several insertions at one
  /// place only one can be there.
  bool endsBefore(const Substitution& s) const {
    return lastEnd < s.start && (lastStart < s.start || s.end >= s.start);
  }
};

Growing apply(const Growing& base, const Substitution& s) {
  const QString& text = base.variant.text;
  Growing grown;
  grown.variant.text = cut(text, 1, base.difference + s.start - 1) + s.text +
                       cutFrom(text, base.difference + s.end + 1);
  grown.variant.literal = base.variant.literal || s.kind == Substitution::Kind::Literal;
  grown.difference = base.difference + static_cast<int>(s.text.size()) - (s.end - s.start + 1);
  grown.lastStart = s.start;
  grown.lastEnd = s.end;
  return grown;
}

}  // namespace

std::vector<Substitution> substitutionsOf(const SubQuestion& answer) {
  using Kind = Substitution::Kind;
  const QString& tail = answer.同;
  const auto number = [&](qsizetype position, int width) {
    return numberOf(cut(tail, position, width));
  };
  std::vector<Substitution> all;
  if (answer.省略開始 >= 1)
    all.push_back({Kind::Omission, answer.省略開始, answer.省略終了, 0, QString()});
  const int coded = number(5, 2);
  const int literal = number(7, 2);
  qsizetype at = 9;
  for (int i = 0; i < coded; ++i, at += 7) {
    const int start = number(at, 2);
    const int code = number(at + 4, 3);
    all.push_back({Kind::Coded, start, start + number(at + 2, 2) - 1, code, contractionText(code)});
  }
  for (int i = 0; i < literal; ++i) {
    const int length = number(at + 4, 2);
    all.push_back({Kind::Literal, number(at, 2), number(at + 2, 2), 0, cut(tail, at + 6, length)});
    at += 6 + length;
  }
  return all;
}

std::vector<Variant> ExpandAnswers(const SubQuestion& answer) {
  std::vector<Substitution> substitutions = substitutionsOf(answer);
  const auto stop = std::find_if(substitutions.begin(), substitutions.end(),
                                 [](const Substitution& s) { return s.start < 1; });
  substitutions.erase(stop, substitutions.end());
  if (substitutions.size() > maxExpandedSubstitutions)
    substitutions.resize(maxExpandedSubstitutions, substitutions.front());

  const Growing plain{{answer.正, false}, 0, 0, 0};
  std::vector<Growing> grown;
  grown.reserve(maxVariants);
  for (const Substitution& s : substitutions) grown.push_back(apply(plain, s));

  // From left to right, each substitution also joins every form that ends before it begins. An
  // insertion comes before what takes the place of the text behind it.
  const auto place = [](const Substitution& s) { return std::pair(s.start, s.end >= s.start); };
  std::stable_sort(
      substitutions.begin(), substitutions.end(),
      [&](const Substitution& a, const Substitution& b) { return place(a) < place(b); });
  for (const Substitution& s : substitutions) {
    const size_t existing = grown.size();
    for (size_t m = 0; m < existing; ++m) {
      if (!grown[m].endsBefore(s)) continue;
      if (grown.size() == maxVariants) return {};
      grown.push_back(apply(grown[m], s));
    }
  }
  std::vector<Variant> variants;
  variants.reserve(grown.size());
  for (Growing& g : grown) variants.push_back(std::move(g.variant));
  return variants;
}

}  // namespace tavoli
