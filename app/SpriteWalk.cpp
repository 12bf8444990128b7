// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/SpriteWalk.h"

namespace tavoli {

namespace {

constexpr int walkSpan = 10;
constexpr int lastWalkStep = walkSpan * SpriteWalk::walkingFrames;
constexpr int walkAgainStep = 71;

}  // namespace

SpriteStep SpriteWalk::tick() {
  ++m_walkStep;
  if (m_walkStep <= lastWalkStep) {
    m_walkingFrame = (m_walkingFrame + 1) % walkingFrames;
    return {SpriteStep::Clip::Walking, m_walkingFrame, m_walkStep};
  }
  m_standingFrame = (m_standingFrame + 1) % standingFrames;
  if (m_walkStep == walkAgainStep) m_walkStep = 0;
  return {SpriteStep::Clip::Standing, m_standingFrame, lastWalkStep};
}

}  // namespace tavoli
