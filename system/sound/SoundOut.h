// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QThread>

#include <functional>

#include "system/sound/Mixer.h"

namespace tavoli {

/// Plays the mixer's stream on the machine's sound device. Where there is none, or where it stops,
/// a clock takes its place, so that the stream goes on in time, unheard.
class SoundOut {
 public:
  enum class Device { standard, none };

  /// `onSilent` is called in the caller's thread, by its event loop, when there is no device (any
  /// more). The mixer must outlive this.
  SoundOut(Mixer& mixer, std::function<void()> onSilent, Device device = Device::standard);
  ~SoundOut();
  SoundOut(const SoundOut&) = delete;
  SoundOut& operator=(const SoundOut&) = delete;

 private:
  QObject m_home;  ///< in the caller's thread
  QThread m_thread;
};

}  // namespace tavoli
