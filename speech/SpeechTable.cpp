// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/SpeechTable.h"

#include "speech/SayAs.h"

namespace tavoli {

Utterance ApplySpeechTable(const QString& text) {
  QString spoken = text;
  for (const SayAs& row : sayAsPhraseTable()) {
    const qsizetype at = spoken.indexOf(row.from);
    if (at >= 0) spoken.replace(at, row.from.size(), row.to.data(), row.to.size());
  }
  return {spoken, text};
}

Utterance sentenceEntry(const QString& text) {
  constexpr QStringView abbreviation = u" in.";
  Utterance entry = ApplySpeechTable(text);
  if (text.size() > abbreviation.size() && text.endsWith(abbreviation)) entry.spoken.chop(1);
  return entry;
}

}  // namespace tavoli
