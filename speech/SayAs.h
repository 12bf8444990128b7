// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>
#include <span>

// How the voices must be told to say what they would say wrongly.
namespace tavoli {

struct SayAs {
  QStringView from;
  QStringView to;
};

/// The respelling of a word or phrase that stands in the table as a whole (the first row that
/// equals it): "" when it is not to be spoken at all, nothing when it is spoken as it is written.
std::optional<QString> sayAsWord(QStringView word);

/// Replacements inside a longer text, to be applied in this order.
std::span<const SayAs> sayAsPhraseTable();

}  // namespace tavoli
