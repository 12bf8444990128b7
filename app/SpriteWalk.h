// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tavoli {

/// One picture of the figure on the login screen.
struct SpriteStep {
  enum class Clip { Walking, Standing };
  Clip clip;
  int frame;  ///< from 0
  int left;   ///< in pixels of the unscaled picture
};

/// The figure walks in from the left, stands a while, and begins again.
class SpriteWalk {
 public:
  static constexpr int walkingFrames = 6;
  static constexpr int standingFrames = 11;

  /// What the next tick shows.
  SpriteStep tick();

 private:
  int m_walkStep = 0;
  int m_walkingFrame = -1;  ///< before the first frame
  int m_standingFrame = -1;
};

}  // namespace tavoli
