// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QTest>

#include <atomic>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include "system/sound/Mixer.h"
#include "system/sound/Resampler.h"
#include "system/sound/SoundOut.h"
#include "tests/support/Print.h"

namespace tavoli {
namespace {

double wave(double seconds) {
  constexpr double pitch = 1000;
  return 12000 * std::sin(2 * std::numbers::pi * pitch * seconds);
}

TEST(ResamplerTest, KeepsSoundAndLengthAtEveryRate) {
  for (const int rate : {8000, 11025, 16000, 22050, 44100, 48000}) {
    SCOPED_TRACE(rate);
    Samples in(rate / 2);
    for (std::size_t i = 0; i < in.size(); ++i)
      in[i] = static_cast<qint16>(wave(static_cast<double>(i) / rate));
    Resampler resampler(rate);
    for (int round = 0; round < 2; ++round) {
      Samples out;
      for (std::size_t at = 0; at < in.size(); at += 333)
        resampler.feed(std::span(in).subspan(at, std::min<std::size_t>(333, in.size() - at)), out);
      resampler.finish(out);
      EXPECT_NEAR(static_cast<double>(out.size()), samplesPerSecond / 2.0, 2);
      double worst = 0;
      for (std::size_t i = 2000; i < out.size() - 2000; ++i)
        worst = std::max(worst, std::abs(out[i] - wave(static_cast<double>(i) / samplesPerSecond)));
      EXPECT_LT(worst, 120) << "in round " << round;
    }
  }
}

class Constant final : public SoundSource {
 public:
  explicit Constant(qint16 value) : m_value(value) {}
  std::size_t read(std::span<qint16> out) override {
    const std::size_t count = std::min<std::size_t>(out.size(), 3);
    std::fill_n(out.begin(), count, m_value);
    return count;
  }

 private:
  qint16 m_value;
};

TEST(MixerTest, AddsSoundsBoundsThemAndTapsTheVeryStream) {
  Mixer mixer;
  Samples heard;
  mixer.setTap([&](std::span<const qint16> piece) {
    heard.insert(heard.end(), piece.begin(), piece.end());
  });
  const auto loud = std::make_shared<Constant>(30000);
  mixer.add(loud);
  mixer.play({1000, 10000, -40, -40, 7});
  Samples out(4, 99);
  mixer.read(out);
  EXPECT_EQ(out, (Samples{31000, 32767, 29960, -40}));
  mixer.remove(*loud);
  mixer.read(out);
  EXPECT_EQ(out, (Samples{7, 0, 0, 0}));
  EXPECT_EQ(heard, (Samples{31000, 32767, 29960, -40, 7, 0, 0, 0}));
}

QStringList s_messages;

TEST(SoundOutTest, GoesOnInTimeAndInSilenceWithoutADevice) {
  const auto usual = qInstallMessageHandler(
      [](QtMsgType, const QMessageLogContext&, const QString& text) { s_messages.append(text); });
  qputenv("PULSE_SERVER", "/no such server");
  for (const auto device : {SoundOut::Device::none, SoundOut::Device::standard}) {
    Mixer mixer;
    std::atomic<qint64> heard = 0;
    mixer.setTap(
        [&](std::span<const qint16> piece) { heard += static_cast<qint64>(piece.size()); });
    bool silent = false;
    QElapsedTimer time;
    time.start();
    const SoundOut out(
        mixer, [&] { silent = true; }, device);
    constexpr qint64 fifth = samplesPerSecond / 5;
    ASSERT_TRUE(QTest::qWaitFor([&] { return silent && heard >= fifth; }));
    EXPECT_GE(time.elapsed(), 190) << "the clock runs ahead";
    EXPECT_LE(heard, time.elapsed() * samplesPerSecond / 1000 + 1);
  }
  qInstallMessageHandler(usual);
  EXPECT_EQ(s_messages.join(u'|'), QString());
}

}  // namespace
}  // namespace tavoli
