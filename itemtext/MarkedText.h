// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace tavoli {

/// A text with its display marks taken out: "[" "]" underline and "{" "}" colour what stands
/// between them, "％" breaks the line.
struct MarkedText {
  struct Span {
    /// The marks of a text, and what a question on show adds: the blank that is asked, and the
    /// answers that were right.
    enum class Kind { Underlined, Coloured, Asked, Answered };
    Kind kind;
    qsizetype offset;  ///< in `text`, from 0
    qsizetype length;
    bool operator==(const Span&) const = default;
  };
  QString text;
  std::vector<Span> spans;
  /// A mark stood alone or was closed by another kind's; such a pair marks nothing.
  bool unpaired = false;
  bool operator==(const MarkedText&) const = default;
};

/// Marks are taken in pairs from the left: the first with the second, the third with the fourth.
MarkedText parseMarks(const QString& marked);

/// The text as it is, nothing in it taken for a mark.
MarkedText plainText(const QString& text);

}  // namespace tavoli
