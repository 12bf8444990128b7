// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "speech/KanaReading.h"
#include "speech/NumberReading.h"
#include "speech/ReadableText.h"
#include "tests/support/Print.h"

namespace tavoli {
namespace {

TEST(SpeakableKanaTest, LeavesOnlyWhatAVoiceCanSay) {
  EXPECT_EQ(speakableKana(QStringLiteral("ひらガナを")), QStringLiteral("ヒラガナオ"));
  EXPECT_EQ(speakableKana(QStringLiteral("ーアーーンーッーヵヮ")), QStringLiteral("アーンッカワ"));
  EXPECT_EQ(speakableKana(QStringLiteral("ファティカァウォ")), QStringLiteral("ファティカアウォ"));
  EXPECT_EQ(speakableKana(QStringLiteral("、。ア、、。イ。、ウ、々x・")),
            QStringLiteral("ア。イ。ウ、"));
}

struct Case {
  const char* text;
  const char* reading;
};

class KanaReadingTest : public testing::Test {
 protected:
  void SetUp() override {
    reading =
        KanaReading::open(KanaReading::dictionariesFor(QStringLiteral(TAVOLI_PROGRAM_FOLDER)));
    if (!reading) GTEST_SKIP() << "built without MeCab";
  }
  template <std::size_t count>
  void expect(const Case (&cases)[count]) const {
    for (const Case& c : cases)
      EXPECT_EQ(reading->readAsText(QString::fromUtf8(c.text)), QString::fromUtf8(c.reading))
          << c.text;
  }
  std::optional<KanaReading> reading;
};

TEST_F(KanaReadingTest, MarksLatinPiecesAndPausesAndDropsOtherSigns) {
  expect({{"", ""},
          {"・・", ""},
          {"原形・・過去", "ゲンケー、カコ"},
          {"空所に go を入れ、I'm fine. と言う。", "クーショニ[go]オイレ、[I'm fine.]トイウ。"},
          {"write － wrote － written の形", "[write, wrote, written]ノカタチ"},
          {"「３０分」とＣＤ〔※〕★", "サンジュップン、ト[CD]"},
          {"ｶﾀｶﾅとヴァイオリン", "カタカナトバイオリン"},
          {"10 minutes late は遅刻です", "[10 minutes late]ワチコクデス"},
          {"次の文\n次の文", "ツギノブン。ツギノブン"}});
}

TEST_F(KanaReadingTest, ReadsNumbersWithWhatTheyCount) {
  expect({{"１本、２本、３本、６本、８本、10本",
           "イッポン、ニホン、サンボン、ロッポン、ハッポン、ジュッポン"},
          {"1分4分15分", "イップンヨンプンジューゴフン"},
          {"１つ２つ９つ", "ヒトツフタツココノツ"},
          {"１人と４人と10人", "ヒトリトヨニントジューニン"},
          {"４月１日から５月20日まで", "シガツツイタチカラゴガツハツカマデ"},
          {"１日おき", "イチニチオキ"},
          {"４時７時９時と7:30", "ヨジシチジクジトシチジサンジュップン"},
          {"４年、14歳、８歳、１冊", "ヨネン、ジューヨンサイ、ハッサイ、イッサツ"},
          {"２文を１文に", "ニブンオイチブンニ"},
          {"４分の１", "ヨンブンノイチ"},
          {"3階、３軒、３匹、６個", "サンガイ、サンゲン、サンビキ、ロッコ"},
          {"50%と2.5センチ", "ゴジュッパーセントトニテンゴセンチ"},
          {"1,000円と368600円", "センエントサンジューロクマンハッセンロッピャクエン"},
          {"090のあと", "ゼロキューゼロノアト"},
          {"12345678901234567890",
           "イチニサンヨンゴロクナナハチキューゼロイチニサンヨンゴロクナナハチキューゼロ"}});
  EXPECT_EQ(kanaOfNumber(QStringLiteral("10000000")), QStringLiteral("イッセンマン"));
  EXPECT_EQ(kanaOfNumber(QStringLiteral("100003001")), QStringLiteral("イチオクサンゼンイチ"));
}

TEST_F(KanaReadingTest, ReadsWhatQuestionsAreRespeltTo) {
  expect({{"仮定 法過去", "カテーホーカコ"},
          {"不貞市を使い", "フテーシオツカイ"},
          {"２ブンと１ブン", "ニブントイチブン"},
          {"弐聞を壱聞にいれなさい", "ニブンオイチブンニイレナサイ"},
          {"ジョウズに日本銃を", "ジョウズニニホンジューオ"},
          {"記の下に射れよ", "キノシタニイレヨ"},
          {"日本 文", "ニホンブン"},
          {"胃って、胃った、繰る", "イッテ、イッタ、クル"},
          {"原形 過去 過去分詞", "ゲンケーカコカコブンシ"},
          {"単元 ゲンザイ分詞", "タンゲンゲンザイブンシ"},
          {"かれの括弧の括弧に括弧内", "カレノカッコノカッコニカッコナイ"}});
}

TEST_F(KanaReadingTest, ReadsTheWordsThatAreMostEasilyMisread) {
  expect({
#include "tests/speech/MisreadWords.inc"
  });
}

}  // namespace
}  // namespace tavoli
