// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>
#include <map>
#include <memory>

#include "speech/Utterance.h"
#include "speech/voices/SpeechStream.h"
#include "speech/voices/Synthesis.h"
#include "speech/voices/Voices.h"
#include "system/sound/Mixer.h"

namespace tavoli {

/// Says utterances one after the other into the mixer's stream. Nothing here waits: the voices work
/// on a thread of their own, some seconds ahead of what is heard.
class VoiceSpeaker {
 public:
  /// What becomes of the utterances, told by the event loop of the thread that made the speaker, in
  /// their order. Any of them may be empty. Behind `stop` nothing is told of what was said before.
  struct Listener {
    std::function<void(const Utterance&)> begins = {};
    std::function<void(const Utterance&)> ends = {};
    /// It was not spoken, or not to its end, for the reason that the line gives; told when it was
    /// its turn.
    std::function<void(const Utterance&, const QString& line)> dropped = {};
  };
  /// Makes the voice of a language, on the voices' thread; none where there is none.
  using VoiceMaker =
      std::function<std::unique_ptr<Synthesis>(VoiceLanguage language, const VoiceChoice& choice)>;

  /// The mixer must outlive the speaker.
  VoiceSpeaker(Mixer& mixer, VoiceMaker maker, Listener listener);
  ~VoiceSpeaker();
  VoiceSpeaker(const VoiceSpeaker&) = delete;
  VoiceSpeaker& operator=(const VoiceSpeaker&) = delete;

  /// Counts for what is not synthesised yet.
  void choose(const VoiceChoice& choice);
  void say(const Utterance& utterance);
  /// Forgets all that is queued and cuts what sounds; at most 441 samples of it are still heard.
  void stop();
  /// Sounds at once, over whatever is being said.
  void beep();

 private:
  class Worker;

  void hear(SpeechStream::Event event, int number);

  Mixer& m_mixer;
  Listener m_listener;
  std::map<int, Utterance> m_said;  ///< by number, until they end
  int m_next = 0;
  Samples m_beep;
  std::shared_ptr<SpeechStream> m_stream;
  std::unique_ptr<Worker> m_worker;
  QObject m_home;  ///< in the caller's thread; gone first, with what waits for it
};

}  // namespace tavoli
