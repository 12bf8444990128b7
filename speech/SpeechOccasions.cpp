// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/SpeechOccasions.h"

#include "data/Text.h"
#include "speech/CommentSpeech.h"
#include "speech/QuestionSpeech.h"
#include "speech/SayAs.h"
#include "speech/SpeechTable.h"
#include "speech/WordSpeech.h"

namespace tavoli {

namespace {

bool isFragment(const Utterance& entry) {
  return entry.shown == u"= be" || entry.shown == u"so A";
}

SpeechList spokenWord(ShowAnswerMode mode, const QString& 英語) {
  SpeechList list;
  const Utterance letters = mode == ShowAnswerMode::onDemand ? spelling(英語) : Utterance();
  if (!letters.isEmpty()) list.push_back(letters);
  if (std::optional<Utterance> word = SpeakWord(英語)) list.push_back(std::move(*word));
  if (!letters.isEmpty()) list.push_back(letters);
  return list;
}

}  // namespace

SpeechList itemSpeech(const CurrentRecord& record) {
  if (record.sentence) {
    if (isSilentSentence(record)) return {};
    return SpeakComment(record.コメント, speechQA(record));
  }
  WordSpeech word = speechAns(record.英語);
  if (word.pronExceptionFlag) return word.arraySPEECH;
  return SpeakComment(record.コメント, std::move(word.arraySPEECH));
}

bool 発Exception(const Utterance& entry, const QString& key) {
  return entry.shown.indexOf(u':', 1) >= 0 || entry.shown.indexOf(u';', 1) >= 0 ||
         sayAsWord(trimBlanks(key)).has_value();
}

SpeechList SPEECH(const SpeechList& arraySPEECH, int repeats, const QString& key) {
  SpeechList spoken;
  for (int r = 1; r <= repeats; ++r)
    for (const Utterance& entry : arraySPEECH) {
      if (entry.isEmpty() || isFragment(entry)) continue;
      spoken.push_back(entry);
      if (!発Exception(entry, key)) spoken.back().context = QStringLiteral("E-mail");
    }
  return spoken;
}

SpeechList ShowAnswer(ShowAnswerMode mode, const CurrentRecord& record, int k) {
  if (!record.sentence) return spokenWord(mode, record.英語);
  if (!record.has(k) || isSilentSentence(record)) return {};
  const QString& 正 = record.at(k).正;
  const Utterance answer = sentenceEntry(trimBlanks(正.sliced(正.indexOf(u'=') + 1)));
  return answer.isEmpty() ? SpeechList() : SpeechList{answer};
}

TimeUp TimeUpSound(bool enabled, int timeUpSound) {
  if (!enabled) return {};
  if (timeUpSound == 1) return {true, std::nullopt};
  if (timeUpSound == 2) return {false, Utterance{QStringLiteral("Time is up."), QString()}};
  return {};
}

}  // namespace tavoli
