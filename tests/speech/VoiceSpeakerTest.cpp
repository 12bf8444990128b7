// SPDX-License-Identifier: GPL-3.0-or-later

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

#include <gtest/gtest.h>

#include "speech/voices/VoiceSpeaker.h"
#include "tests/support/Print.h"
#include "tests/support/SoundSupport.h"

namespace tavoli {
namespace {

/// Says each text as 1,000 samples a character, as loud as its first character's number; fails at
/// the texts that begin with "!", behind the first sample of "!!".
class PlainVoice final : public Synthesis {
 public:
  std::optional<QString> say(const QString& text, const Pace&, SampleTaker& taker) override {
    const bool fails = text.startsWith(u'!');
    if (!fails || text.startsWith(QStringLiteral("!!")))
      for (qsizetype i = 0; i < text.size() && taker.wanted(); ++i)
        taker.take(Samples(1000, static_cast<qint16>(text[0].unicode() * 100)));
    if (fails) return QStringLiteral("failed");
    return std::nullopt;
  }
};

class VoiceSpeakerTest : public testing::Test {
 protected:
  void say(const QString& text) { speaker.say({text, text, {}, 0, VoiceLanguage::English}); }
  /// Reads the stream, and tells what happened, until so much did.
  void playUntil(qsizetype count) {
    QElapsedTimer time;
    time.start();
    while (told.size() < count && time.elapsed() < 20000) {
      Samples piece(2000);
      mixer.read(piece);
      stream.insert(stream.end(), piece.begin(), piece.end());
      QThread::yieldCurrentThread();
      QCoreApplication::processEvents();
    }
  }

  int argumentCount = 0;
  QCoreApplication application{argumentCount, nullptr};
  Mixer mixer;
  QStringList told;
  Samples stream;
  VoiceSpeaker speaker{
      mixer,
      [](VoiceLanguage language, const VoiceChoice&) -> std::unique_ptr<Synthesis> {
        if (language == VoiceLanguage::Japanese) return nullptr;
        return std::make_unique<PlainVoice>();
      },
      {[this](const Utterance& u) { told.append(u'+' + u.shown); },
       [this](const Utterance& u) { told.append(u'-' + u.shown); },
       [this](const Utterance& u, const QString& line) {
         told.append(u'x' + u.shown + u' ' + line);
       }}};
};

TEST_F(VoiceSpeakerTest, TellsInOrderWhatBeginsEndsAndFails) {
  say(QStringLiteral("ab"));
  say(QStringLiteral("!c"));
  say(QString());
  say(QStringLiteral("!!d"));
  speaker.say({QStringLiteral("e"), QStringLiteral("e"), {}, 0, VoiceLanguage::Japanese});
  say(QStringLiteral("f"));
  playUntil(11);
  EXPECT_EQ(told.join(u'|'), QStringLiteral("+ab|-ab|x!c failed|+|-|+!!d|-!!d|x!!d failed|"
                                            "xe 日本語の音声がないので、読み上げません。|+f|-f"));
}

TEST_F(VoiceSpeakerTest, IsAsLoudAsChosenAndBeepsOverSpeech) {
  VoiceChoice choice;
  choice.loudness = 50;
  speaker.choose(choice);
  say(QStringLiteral("P"));
  playUntil(2);
  EXPECT_EQ(test::loudest(stream), 4000);
  stream.clear();
  speaker.beep();
  say(QStringLiteral("P"));
  playUntil(4);
  EXPECT_GT(test::loudest(stream), 8000);
}

TEST_F(VoiceSpeakerTest, StopCutsEverythingAtOnceAndIsFollowedByTheNext) {
  for (int i = 0; i < 50; ++i) say(QStringLiteral("P") + QString(100, u'x'));
  playUntil(1);
  ASSERT_EQ(test::loudest(stream), 8000);
  speaker.beep();
  QCoreApplication::processEvents();
  told.clear();
  speaker.stop();
  Samples rest(samplesPerSecond);
  mixer.read(rest);
  EXPECT_EQ(test::loudest(std::span(rest).subspan(2205)), 0);
  say(QStringLiteral("Q"));
  playUntil(2);
  EXPECT_EQ(told.join(u'|'), QStringLiteral("+Q|-Q"));
}

TEST_F(VoiceSpeakerTest, TakesAThousandUtterancesWithoutWaiting) {
  QElapsedTimer time;
  time.start();
  for (int i = 0; i < 1000; ++i) say(QStringLiteral("P") + QString::number(i));
  EXPECT_LT(time.elapsed(), 500);
  playUntil(2000);
  ASSERT_EQ(told.size(), 2000);
  for (int i = 0; i < 1000; ++i) {
    EXPECT_EQ(told[2 * i], QStringLiteral("+P%1").arg(i));
    EXPECT_EQ(told[2 * i + 1], QStringLiteral("-P%1").arg(i));
  }
}

TEST_F(VoiceSpeakerTest, GoesWhileUtterancesWait) {
  for (int i = 0; i < 1000; ++i) say(QStringLiteral("P") + QString(500, u'x'));
}

}  // namespace
}  // namespace tavoli
