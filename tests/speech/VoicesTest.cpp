// SPDX-License-Identifier: GPL-3.0-or-later

#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

#include "speech/voices/CommandVoice.h"
#include "speech/voices/Voices.h"
#include "speech/voices/WaveSound.h"
#include "tests/support/Print.h"
#include "tests/support/SoundSupport.h"

namespace tavoli {
namespace {

using test::KeepingTaker;
using test::loudest;

const auto dictionaries = KanaReading::dictionariesFor(QStringLiteral(TAVOLI_PROGRAM_FOLDER));

struct Case {
  VoiceEngine engine;
  VoiceLanguage language;
  QString word;
  QString other;
  QString longText;
};

std::unique_ptr<Synthesis> voiceOf(const Case& c) {
  VoiceChoice choice;
  (c.language == VoiceLanguage::English ? choice.english : choice.japanese) = c.engine;
  return makeVoice(c.language, choice, dictionaries);
}

class VoicesTest : public testing::TestWithParam<Case> {
 protected:
  void SetUp() override {
    if (!voiceAvailable(GetParam().engine, dictionaries)) GTEST_SKIP() << "built without it";
    voice = voiceOf(GetParam());
    ASSERT_TRUE(voice);
  }
  Samples say(const QString& text, const Pace& pace = {}) {
    KeepingTaker taker;
    EXPECT_EQ(voice->say(text, pace, taker), std::nullopt);
    return taker.heard;
  }
  std::unique_ptr<Synthesis> voice;
};

TEST_P(VoicesTest, SaysWordsThatSoundDifferentInTheirTime) {
  const Samples one = say(GetParam().word);
  const Samples other = say(GetParam().other);
  for (const Samples* samples : {&one, &other}) {
    EXPECT_GT(samples->size(), samplesPerSecond / 5);
    EXPECT_LT(samples->size(), samplesPerSecond * 3 / 2);
    EXPECT_GT(loudest(*samples), 2000);
  }
  EXPECT_NE(one, other);
}

TEST_P(VoicesTest, FollowsThePace) {
  const auto own = static_cast<double>(say(GetParam().longText).size());
  const auto slow = static_cast<double>(say(GetParam().longText, {0, 0.6}).size());
  const auto fast = static_cast<double>(say(GetParam().longText, {300, 1}).size());
  EXPECT_GT(slow, own * 1.3);
  EXPECT_LT(fast, own * 0.75);
}

TEST_P(VoicesTest, EndsSoonWhenNobodyListensAndIsFreshAfterwards) {
  const std::size_t whole = say(GetParam().longText).size();
  KeepingTaker taker(whole / 8);
  EXPECT_EQ(voice->say(GetParam().longText, {}, taker), std::nullopt);
  EXPECT_LT(taker.heard.size(), whole * 2 / 3);
  EXPECT_NEAR(static_cast<double>(say(GetParam().word).size()),
              static_cast<double>(say(GetParam().word).size()), samplesPerSecond / 20.0);
}

TEST_P(VoicesTest, BearsAnyText) {
  const QString controls = QStringLiteral("a\x1b[1m\n\r\t") + QChar() + QChar(0x7f) + QChar(0xD800);
  for (const QString& text :
       {QString(), controls, QStringLiteral("\\Map=\"x\"=\"y\"\\ <speak> [[h@]]"),
        QStringLiteral("?!...、。「」～％{}"), QStringLiteral("é日本ü한국")}) {
    const Samples samples = say(text);
    EXPECT_LT(samples.size(), samplesPerSecond * 20) << qPrintable(text);
  }
  for (const QChar filler : {u'a', u'漢', u' ', u'.'}) {
    KeepingTaker taker(samplesPerSecond);
    EXPECT_EQ(voice->say(QString(10000, filler), {}, taker), std::nullopt);
  }
}

const QString english = QStringLiteral("This is the house that I have told you about, my friend.");
INSTANTIATE_TEST_SUITE_P(
    Engines, VoicesTest,
    testing::Values(Case{VoiceEngine::flite, VoiceLanguage::English, QStringLiteral("house"),
                         QStringLiteral("mouse"), english},
                    Case{VoiceEngine::espeakAmerican, VoiceLanguage::English,
                         QStringLiteral("house"), QStringLiteral("mouse"), english},
                    Case{VoiceEngine::espeakBritish, VoiceLanguage::English,
                         QStringLiteral("house"), QStringLiteral("mouse"), english},
                    Case{VoiceEngine::espeakJapanese, VoiceLanguage::Japanese,
                         QStringLiteral("学校"), QStringLiteral("病院"),
                         QStringLiteral("次の日本文を英語に直しなさい。空所を補いなさい。")}));

TEST(CommandVoiceTest, DropsTheTextOfAnyBadCommandWithOneLine) {
  const CommandVoice::Limits limits{700, 1 << 20};
  struct Bad {
    const char* command;
    const char* says;
  };
  for (const Bad& bad :
       {Bad{"", "指定されていません"}, Bad{"/no/such/program -x", "始められません"},
        Bad{"false", "失敗しました"}, Bad{"sleep 60", "時間内に終わりませんでした"},
        Bad{"sh -c \"sleep 60 & sleep 60\"", "時間内に終わりませんでした"},
        Bad{"sh -c \"kill -9 $$\"", "失敗しました"}, Bad{"true", "WAV形式"}, Bad{"cat", "WAV形式"},
        Bad{"yes", "長すぎます"}, Bad{"cat /dev/zero", "長すぎます"}}) {
    SCOPED_TRACE(bad.command);
    CommandVoice voice(QString::fromUtf8(bad.command), limits);
    KeepingTaker taker;
    const auto line = voice.say(QString(200000, u'a'), {}, taker);
    ASSERT_TRUE(line);
    EXPECT_TRUE(line->contains(QString::fromUtf8(bad.says))) << qPrintable(*line);
    EXPECT_FALSE(line->contains(u'\n'));
    EXPECT_TRUE(taker.heard.empty());
  }
  CommandVoice hanging(QStringLiteral("sleep 60"));
  KeepingTaker deaf(0);
  EXPECT_EQ(hanging.say(QStringLiteral("a"), {}, deaf), std::nullopt) << "ends when it is stopped";
}

/// A WAV file of one second at 22,050 Hz; `said` is the length that its head gives.
QByteArray waveFile(quint16 channels, quint16 bits, quint32 said) {
  QByteArray head("RIFF\xff\xff\xff\xffWAVELIST\4\0\0\0abcdfmt \20\0\0\0\1\0", 34);
  const auto append = [&](auto number) {
    number = qToLittleEndian(number);
    head.append(reinterpret_cast<const char*>(&number), sizeof number);
  };
  append(channels);
  append(quint32{22050});
  append(quint32{22050U * channels * bits / 8});
  append(static_cast<quint16>(channels * bits / 8));
  append(bits);
  head += "data";
  append(said);
  return head + QByteArray(22050 * channels * bits / 8, '\x20');
}

TEST(CommandVoiceTest, PlaysTheWaveThatACommandWritesWithoutAShell) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("a b;$HOME.wav"));
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(waveFile(1, 16, 44100));
  file.close();
  CommandVoice voice(QStringLiteral("cat \"%1\"").arg(path));
  KeepingTaker taker;
  EXPECT_EQ(voice.say(QStringLiteral("a"), {}, taker), std::nullopt);
  ASSERT_NEAR(static_cast<double>(taker.heard.size()), samplesPerSecond, 2);
  EXPECT_NEAR(taker.heard[20000], 0x2020, 20);
}

TEST(WaveSoundTest, ReadsEveryFormAndNothingElse) {
  for (const quint32 said : {44100U, 0U, 0xFFFFFFFFU})
    EXPECT_EQ(soundOfWave(waveFile(1, 16, said)).value_or(Samples()).size(), 44100) << said;
  for (const quint16 bits : {quint16{8}, quint16{16}, quint16{24}, quint16{32}})
    EXPECT_EQ(soundOfWave(waveFile(2, bits, 0)).value_or(Samples()).size(), 44100) << bits;
  EXPECT_FALSE(soundOfWave(waveFile(0, 16, 0)));
  EXPECT_FALSE(soundOfWave(waveFile(1, 12, 0)));
  const QByteArray good = waveFile(2, 16, 88200);
  for (qsizetype length = 0; length < 60; ++length) soundOfWave(good.first(length));
  for (qsizetype at = 0; at < 56; ++at) {
    QByteArray broken = good;
    broken[at] = '\xff';
    soundOfWave(broken);
  }
}

}  // namespace
}  // namespace tavoli
