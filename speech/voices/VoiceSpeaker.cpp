// SPDX-License-Identifier: GPL-3.0-or-later

#include "speech/voices/VoiceSpeaker.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace tavoli {

namespace {

/// Hands what a voice says on to the stream, as loud as it was chosen.
class StreamTaker final : public SampleTaker {
 public:
  StreamTaker(SpeechStream& stream, int loudness) : m_stream(stream), m_loudness(loudness) {}

  void take(std::span<const qint16> samples) override {
    if (samples.empty()) return;
    constexpr int percent = 100;
    m_samples.assign(samples.begin(), samples.end());
    if (m_loudness != percent)
      for (qint16& sample : m_samples)
        sample = static_cast<qint16>(std::clamp(sample * m_loudness / percent, -32768, 32767));
    m_stream.append(m_samples);
    m_took = true;
  }
  bool wanted() const override { return m_stream.wanted(); }
  bool took() const { return m_took; }

 private:
  SpeechStream& m_stream;
  int m_loudness;
  Samples m_samples;
  bool m_took = false;
};

}  // namespace

/// The voices' thread, with the utterances that wait for it.
class VoiceSpeaker::Worker {
 public:
  /// Why an utterance failed, and whether something of it is heard nevertheless.
  struct Failure {
    QString line;
    bool heard = false;
  };

  Worker(SpeechStream& stream, VoiceMaker maker)
      : m_stream(stream), m_maker(std::move(maker)), m_thread([this] { run(); }) {}

  ~Worker() {
    forget();
    {
      const std::lock_guard lock(m_lock);
      m_quit = true;
    }
    m_changed.notify_one();
    m_thread.join();
  }
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

  void choose(const VoiceChoice& choice) {
    const std::lock_guard lock(m_lock);
    m_choice = choice;
  }

  void say(int number, const Utterance& utterance) {
    {
      const std::lock_guard lock(m_lock);
      m_waiting.emplace_back(number, utterance);
    }
    m_changed.notify_one();
  }

  void forget() {
    const std::lock_guard lock(m_lock);
    m_waiting.clear();
    m_failures.clear();
    m_stream.clear();
  }

  std::optional<Failure> failure(int number) {
    const std::lock_guard lock(m_lock);
    // Those before it have been told.
    m_failures.erase(m_failures.begin(), m_failures.lower_bound(number));
    const auto found = m_failures.find(number);
    if (found == m_failures.end()) return std::nullopt;
    return found->second;
  }

 private:
  void run() {
    for (;;) {
      std::unique_lock lock(m_lock);
      m_changed.wait(lock, [this] { return m_quit || !m_waiting.empty(); });
      if (m_quit) return;
      const auto [number, utterance] = std::move(m_waiting.front());
      m_waiting.pop_front();
      const VoiceChoice choice = m_choice;
      // Under the lock, lest a text that was just forgotten be opened.
      m_stream.open(number);
      lock.unlock();

      StreamTaker taker(m_stream, choice.loudness);
      const std::optional<QString> line = speak(utterance, choice, taker);
      lock.lock();
      if (line && m_stream.wanted()) m_failures[number] = {*line, taker.took()};
      m_stream.close();
    }
  }

  std::optional<QString> speak(const Utterance& utterance, const VoiceChoice& choice,
                               SampleTaker& taker) {
    VoiceChoice voices = choice;
    voices.pace = m_made.pace;
    voices.loudness = m_made.loudness;
    if (!(voices == m_made)) m_voices.clear();
    m_made = choice;
    auto voice = m_voices.find(utterance.voice);
    if (voice == m_voices.end())
      voice = m_voices.emplace(utterance.voice, m_maker(utterance.voice, choice)).first;
    if (!voice->second)
      return utterance.voice == VoiceLanguage::English
                 ? QStringLiteral("英語の音声がないので、読み上げません。")
                 : QStringLiteral("日本語の音声がないので、読み上げません。");
    return voice->second->say(utterance.spoken, {utterance.speed, choice.pace}, taker);
  }

  SpeechStream& m_stream;
  VoiceMaker m_maker;
  std::map<VoiceLanguage, std::unique_ptr<Synthesis>> m_voices;  ///< the thread's own
  VoiceChoice m_made;                                            ///< what they were made for

  std::mutex m_lock;
  std::condition_variable m_changed;
  std::deque<std::pair<int, Utterance>> m_waiting;
  std::map<int, Failure> m_failures;
  VoiceChoice m_choice;
  bool m_quit = false;
  std::thread m_thread;
};

VoiceSpeaker::VoiceSpeaker(Mixer& mixer, VoiceMaker maker, Listener listener)
    : m_mixer(mixer),
      m_listener(std::move(listener)),
      m_beep(beepTone()),
      m_stream(std::make_shared<SpeechStream>([this](SpeechStream::Event event, int number) {
        QMetaObject::invokeMethod(
            &m_home, [this, event, number] { hear(event, number); }, Qt::QueuedConnection);
      })),
      m_worker(std::make_unique<Worker>(*m_stream, std::move(maker))) {
  m_mixer.add(m_stream);
}

VoiceSpeaker::~VoiceSpeaker() {
  m_mixer.remove(*m_stream);
}

void VoiceSpeaker::choose(const VoiceChoice& choice) {
  m_worker->choose(choice);
}

void VoiceSpeaker::say(const Utterance& utterance) {
  m_said.emplace(m_next, utterance);
  m_worker->say(m_next, utterance);
  ++m_next;
}

void VoiceSpeaker::stop() {
  m_worker->forget();
  m_mixer.stopPlaying();
  m_said.clear();
}

void VoiceSpeaker::beep() {
  m_mixer.play(m_beep);
}

void VoiceSpeaker::hear(SpeechStream::Event event, int number) {
  const auto found = m_said.find(number);
  if (found == m_said.end()) return;
  const Utterance utterance = found->second;
  const std::optional<Worker::Failure> failure = m_worker->failure(number);
  const bool heard = !failure || failure->heard;
  if (event == SpeechStream::Event::begins) {
    if (heard && m_listener.begins) m_listener.begins(utterance);
    return;
  }
  m_said.erase(found);
  if (heard && m_listener.ends) m_listener.ends(utterance);
  if (failure && m_listener.dropped) m_listener.dropped(utterance, failure->line);
}

}  // namespace tavoli
