// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/WordSpeech.h"

#include "speech/SayAs.h"

namespace tavoli {

namespace {

struct SpokenWord {
  /// With "～" still in it; nothing when it is not to be spoken.
  std::optional<QString> spoken;
  bool pronExceptionFlag = false;
};

SpokenWord spokenWord(const QString& 英語) {
  const std::optional<QString> respelled = sayAsWord(英語);
  QString spoken = respelled.value_or(英語);
  if (spoken.startsWith(u"A ")) spoken.replace(0, 1, QStringLiteral("'A'"));
  const qsizetype letter = spoken.indexOf(u" A ", 1);
  if (letter >= 0) spoken.replace(letter, 3, QStringLiteral(" 'A' "));
  if (spoken.size() < 2) return {std::nullopt, respelled.has_value()};
  if (spoken.endsWith(u" A")) spoken.replace(spoken.size() - 1, 1, QStringLiteral("'A'"));
  return {spoken, respelled.has_value()};
}

Utterance withPauses(QString spoken, const QString& spokenPause, QString shown,
                     const QString& shownPause) {
  return {spoken.replace(u'～', spokenPause), shown.replace(u'～', shownPause)};
}

}  // namespace

std::optional<Utterance> SpeakWord(const QString& 英語) {
  const SpokenWord word = spokenWord(英語);
  if (!word.spoken) return std::nullopt;
  return withPauses(*word.spoken, QStringLiteral("'...'"), 英語, QStringLiteral("..."));
}

WordSpeech speechAns(const QString& 英語) {
  const SpokenWord word = spokenWord(英語);
  WordSpeech speech{{}, word.pronExceptionFlag};
  const QString pause = QStringLiteral("..");
  if (word.spoken) speech.arraySPEECH = {withPauses(*word.spoken, pause, 英語, pause)};
  return speech;
}

Utterance spelling(const QString& 英語) {
  Utterance letters;
  if (英語.contains(u' ')) return letters;
  for (const QChar c : 英語) {
    letters.spoken += c == u'a' ? QStringLiteral("'a' ") : QString(c) + u' ';
    letters.shown += QString(c) + u' ';
  }
  return letters;
}

}  // namespace tavoli
