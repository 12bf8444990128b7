// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "speech/voices/Synthesis.h"

namespace tavoli {

/// The English voice cmu_us_slt of flite, one for the whole process like its engine.
class FliteVoice final : public Synthesis {
 public:
  std::optional<QString> say(const QString& text, const Pace& pace, SampleTaker& taker) override;
};

}  // namespace tavoli
