// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/RestTime.h"
#include "system/Dialogs.h"

namespace tavoli {

/// The boxes of a run: the time until one opens and the time that it stands open are taken as two
/// gaps, so that a learner who leaves a box alone is booked as resting.
class RestingDialogs final : public Dialogs {
 public:
  RestingDialogs(Dialogs& dialogs, RestTime& restTime) : m_dialogs(dialogs), m_restTime(restTime) {}

  void show(const QString& text) override {
    m_restTime.takeRestTime();
    m_dialogs.show(text);
    m_restTime.takeRestTime();
  }
  bool ask(const QString& text) override {
    m_restTime.takeRestTime();
    const bool yes = m_dialogs.ask(text);
    m_restTime.takeRestTime();
    return yes;
  }

 private:
  Dialogs& m_dialogs;
  RestTime& m_restTime;
};

}  // namespace tavoli
