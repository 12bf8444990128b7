// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/AnswerScreen.h"

namespace tavoli {

/// What the review asks of whatever shows it.
class ReviewScreen : public AnswerScreen {
 public:
  /// Comes up in the place of the practice; `course` is the name of what is practised.
  virtual void beginReview(const QString& course) = 0;
  /// Makes room for the practice again.
  virtual void endReview() = 0;
};

}  // namespace tavoli
