// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>
#include <span>

#include "system/sound/Samples.h"

namespace tavoli {

/// Takes what a voice says, piece by piece: mono, 16 bits, 44,100 samples a second.
class SampleTaker {
 public:
  virtual ~SampleTaker() = default;
  virtual void take(std::span<const qint16> samples) = 0;
  /// False when nobody wants the rest; the voice then ends soon.
  virtual bool wanted() const = 0;
};

/// How fast to speak.
struct Pace {
  int speed = 0;      ///< words a minute; 0: the voice's own
  double factor = 1;  ///< what that is multiplied by

  int wordsPerMinute(int own) const { return qRound((speed > 0 ? speed : own) * factor); }
};

/// A voice: text in, samples out. It is used on one thread.
class Synthesis {
 public:
  virtual ~Synthesis() = default;
  /// Says the text. Returns nothing when it was said (a text without anything to say included), or
  /// one line for the learner about what is wrong.
  virtual std::optional<QString> say(const QString& text, const Pace& pace, SampleTaker& taker) = 0;
};

/// The text with a blank in the place of each control character, which no engine is to see.
QString withoutControls(QString text);

}  // namespace tavoli
