// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/PracticeVoice.h"

#include "speech/Speaker.h"
#include "speech/SpeechOccasions.h"

using namespace Qt::StringLiterals;

namespace tavoli {

void PracticeVoice::greet() {
  m_speaker.speak(bareUtterance(u"Hello!"_s));
}

void PracticeVoice::keysPressed(int keys, bool inMiniTest) {
  const int stopAt = inMiniTest ? 1 : 2;
  const int before = m_speechKeyCount;
  m_speechKeyCount += keys;
  if (before < stopAt && m_speechKeyCount >= stopAt) m_speaker.stop();
}

void PracticeVoice::sayItem(const ShownItem& shown) {
  m_speaker.speak(SPEECH(itemSpeech(shown.record()), shown.wordShownCount() > 0 ? 2 : 1));
}

void PracticeVoice::sayAnswer(const ShownItem& shown) {
  m_speaker.speak(ShowAnswer(ShowAnswerMode::onDemand, shown.record(), shown.POS1()));
}

}  // namespace tavoli
