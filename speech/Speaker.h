#pragma once

#include <QString>

namespace tavoli {

/// The voice of the drill. Speech is queued and never waited for.
class Speaker {
 public:
  virtual ~Speaker() = default;
  /// Says the text as it stands.
  virtual void say(const QString& text) = 0;
  /// Stops what is being said and forgets what is queued.
  virtual void stop() = 0;
  virtual void beep() = 0;
};

/// A machine without a voice.
class SilentSpeaker final : public Speaker {
 public:
  void say(const QString&) override {}
  void stop() override {}
  void beep() override {}
};

}  // namespace tavoli
