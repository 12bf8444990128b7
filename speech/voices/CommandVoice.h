// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "speech/voices/Synthesis.h"

namespace tavoli {

/// A voice of the learner's own: a program that reads the text in UTF-8 from its standard input and
/// writes a WAV file to its standard output. It is started anew for each text, without a shell, and
/// does not hear of the pace.
class CommandVoice final : public Synthesis {
 public:
  struct Limits {
    int milliseconds = 20000;
    qint64 bytes = qint64{32} * 1024 * 1024;
  };

  /// `command`: the program and its arguments; those with blanks in "quotes".
  explicit CommandVoice(QString command) : CommandVoice(std::move(command), Limits()) {}
  CommandVoice(QString command, const Limits& limits)
      : m_command(std::move(command)), m_limits(limits) {}

  std::optional<QString> say(const QString& text, const Pace& pace, SampleTaker& taker) override;

 private:
  QString m_command;
  Limits m_limits;
};

}  // namespace tavoli
