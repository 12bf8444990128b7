// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/ShownItem.h"

namespace tavoli {

class Speaker;

/// What the practice has said, and which key cuts it short.
class PracticeVoice {
 public:
  explicit PracticeVoice(Speaker& speaker) : m_speaker(speaker) {}

  /// A run opens.
  void greet();
  /// A 小問 is put. What was said before goes on: the first key may come at once.
  void beginSubQuestion() { m_speechKeyCount = 0; }
  /// Keys are pressed on the present 小問: the second one stops the voice, in a mini test the
  /// first.
  void keysPressed(int keys, bool inMiniTest);
  /// The whole item is shown: said twice, or once where nothing of it was asked.
  void sayItem(const ShownItem& shown);
  /// The learner asks for the answer.
  void sayAnswer(const ShownItem& shown);

 private:
  Speaker& m_speaker;
  int m_speechKeyCount = 0;
};

}  // namespace tavoli
