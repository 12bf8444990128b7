#pragma once

#include <QDateTime>
#include <QStringList>

#include <functional>
#include <random>

#include "speech/Speaker.h"
#include "system/Clock.h"
#include "system/Dialogs.h"
#include "system/LoadProgress.h"
#include "system/Random.h"

namespace tavoli::test {

/// A clock that stands still until it is told otherwise.
class FakeClock final : public Clock {
 public:
  QDateTime now() const override { return time; }
  qint64 milliseconds() const override { return time.toMSecsSinceEpoch(); }
  QDateTime time{QDate(2026, 4, 1), QTime(9, 0)};
};

/// Chance that is the same in every run of a seed.
class FakeRandom final : public Random {
 public:
  explicit FakeRandom(unsigned seed = 1) : m_engine(seed) {}
  double next() override { return std::uniform_real_distribution<double>(0.0, 1.0)(m_engine); }
  void reseed() override { ++reseeded; }
  int reseeded = 0;

 private:
  std::mt19937 m_engine;
};

/// Boxes that are answered by a script: each question takes the next of `answers`, Yes when none is
/// left.
class ScriptedDialogs final : public Dialogs {
 public:
  void show(const QString& text) override {
    shown.append(text);
    if (whileOpen) whileOpen();
  }
  bool ask(const QString& text) override {
    asked.append(text);
    if (whileOpen) whileOpen();
    return answers.isEmpty() || answers.takeFirst();
  }
  QStringList shown;
  QStringList asked;
  QList<bool> answers;
  std::function<void()> whileOpen;
};

/// A voice that remembers what it was told.
class RecordingSpeaker final : public Speaker {
 public:
  using Speaker::speak;
  void speak(const Utterance& utterance) override { said.append(utterance.spoken); }
  void stop() override { ++stopped; }
  void beep() override { ++beeps; }
  QStringList said;
  int stopped = 0;
  int beeps = 0;
};

/// A load that nobody stops, unless `stopAt` says at which number.
class FakeProgress final : public LoadProgress {
 public:
  void begin(int loadTotal) override { total = loadTotal; }
  bool reached(int loadDone) override {
    done = loadDone;
    return stopAt == 0 || loadDone < stopAt;
  }
  void end() override { ended = true; }
  int total = 0;
  int done = 0;
  int stopAt = 0;
  bool ended = false;
};

}  // namespace tavoli::test
