#include <QStringEncoder>

#include <gtest/gtest.h>

#include "data/Contractions.h"
#include "data/CurrentRecord.h"
#include "data/Expansion.h"
#include "data/LessonFile.h"
#include "data/Text.h"
#include "data/TextFile.h"
#include "tests/support/Print.h"
#include "tests/support/Seed.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

TEST(RecordTest, TakesAWordApart) {
  const CurrentRecord record =
      ParseRecord(u"be′st|finest^top^|007最もよい^212最善^|The best way  最善の道"_s, u" best  "_s,
                  TableCode::first);
  EXPECT_TRUE(record.complete);
  EXPECT_EQ(record.英語, u"best"_s);
  EXPECT_EQ(record.同, (QStringList{u"finest"_s, u"top"_s}));
  ASSERT_EQ(record.小問数, 2);
  EXPECT_EQ(record.text(2), u"最善"_s);
  EXPECT_EQ(record.記(2), MemoryState::完全);
  EXPECT_EQ(record.at(1).小問回数, 7);
  EXPECT_EQ(record.コメント, u"The best way  最善の道"_s);
  EXPECT_EQ(record.text(3), QString());
}

TEST(RecordTest, TakesASentenceApart) {
  const CurrentRecord record =
      ParseRecord(u"問題％(   )|030011I am a boy.010201000105001^001004boys00000000^|コ|メ"_s,
                  u"000010"_s, TableCode::sentences);
  EXPECT_TRUE(record.complete);
  ASSERT_EQ(record.小問数, 2);
  EXPECT_EQ(record.at(1).先頭文字数, 3);
  EXPECT_EQ(record.at(1).正, u"I am a boy."_s);
  EXPECT_EQ(record.at(1).省略開始, 1);
  EXPECT_EQ(record.at(1).省略終了, 2);
  EXPECT_EQ(record.記(2), MemoryState::うろ覚え);
  EXPECT_EQ(record.コメント, u"コ|メ"_s) << "the comment is all behind the last mark";
}

TEST(RecordTest, DamagedRecordsAreParsedAsFarAsTheyGoAndKeptFromRewriting) {
  const struct {
    const char* name;
    QString text;
    TableCode table;
    int 小問数;
    bool complete;
  } cases[] = {
      {"no marks", u"abc"_s, TableCode::sentences, 0, false},
      {"length beyond the text", u"問|000099short^|コ"_s, TableCode::sentences, 1, false},
      {"letters for a count", u"||0xx意味^|"_s, TableCode::first, 1, false},
      {"nineteen meanings", u"||"_s + u"000意味^"_s.repeated(19) + u'|', TableCode::first, 19,
       true},
      {"twenty meanings", u"||"_s + u"000意味^"_s.repeated(20) + u'|', TableCode::first, 19, false},
      {"twenty synonyms", u'|' + u"syn^"_s.repeated(20) + u"|000意味^|"_s, TableCode::first, 1,
       false},
      {"an empty meaning ends what is asked", u"||000一^000^000三^|"_s, TableCode::first, 1, true},
      {"unended element", u"||000一^000二|"_s, TableCode::first, 1, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const CurrentRecord record = ParseRecord(c.text, u"key"_s, c.table);
    EXPECT_EQ(record.小問数, c.小問数);
    EXPECT_EQ(record.complete, c.complete);
  }
}

TEST(RecordTest, NoDamageCrashesTheParserOrTheExpansion) {
  const unsigned seed = test::randomSeed();
  SCOPED_TRACE(testing::Message() << "seed " << seed);
  std::mt19937 random(seed);
  const QString alphabet = u"||^^^000112299５ａIam '％[]{}"_s;
  for (int round = 0; round < 20'000; ++round) {
    QString text;
    for (auto length = random() % 60; length > 0; --length)
      text += alphabet[static_cast<qsizetype>(random()) % alphabet.size()];
    for (const TableCode table : {TableCode::sentences, TableCode::first}) {
      const CurrentRecord record = ParseRecord(text, u"k"_s, table);
      for (const SubQuestion& s : record.小問) ExpandAnswers(s);
      BuildPronunciationText(record.発音, QString());
    }
  }
}

TEST(RecordTest, ShowsThePronunciationNote) {
  const struct {
    const char* name;
    const char16_t* note;
    const char16_t* shown;
  } cases[] = {
      {"too short: what stood there stays", u"x", u"before"},
      {"two stresses in colour", u"a′bcde’f", u"［ {a}bcd{e}f ］"},
      {"accent warning", u"ァho′tel", u"  {アクセント注意}［ h{o}tel ］"},
      {"pronunciation warning", u"発ウンド", u"  {発音注意}［ ウンド ］"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(BuildPronunciationText(QString::fromUtf16(c.note), u"before"_s),
              QString::fromUtf16(c.shown));
  }
}

/// All texts that come of applying every non-empty choice of substitutions that do not overlap; one
/// that holds a literal ends in "*".
QStringList allCombinations(const QString& answer, std::vector<Substitution> all) {
  const auto inserts = [](const Substitution& s) { return s.end < s.start; };
  std::ranges::sort(all, {}, [&](auto& s) { return std::pair(s.start, !inserts(s)); });
  QStringList texts;
  for (unsigned choice = 1; choice < 1U << all.size(); ++choice) {
    QString text = answer;
    const Substitution* behind = nullptr;
    bool apart = true;
    bool literal = false;
    for (size_t i = all.size(); i-- > 0;) {
      if (!(choice >> i & 1U)) continue;
      const Substitution& s = all[i];
      apart = apart && (!behind ||
                        (s.end < behind->start && (s.start < behind->start || !inserts(*behind))));
      if (apart) text.replace(s.start - 1, s.end - s.start + 1, s.text);
      literal = literal || s.kind == Substitution::Kind::Literal;
      behind = &s;
    }
    if (apart) texts.append(literal ? text + u'*' : text);
  }
  texts.sort();
  return texts;
}

TEST(ExpansionTest, HoldsEveryCombinationThatDoesNotOverlap) {
  using enum Substitution::Kind;
  const unsigned seed = test::randomSeed();
  SCOPED_TRACE(testing::Message() << "seed " << seed);
  std::mt19937 random(seed);
  const auto upTo = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  int expanded = 0;
  for (int round = 0; round < 2000; ++round) {
    SubQuestion answer;
    for (int i = 0; i < 24; ++i) answer.正 += QChar(u'a' + i);
    std::vector<Substitution> all;
    answer.省略開始 = upTo(2) * (1 + upTo(20));
    answer.省略終了 = answer.省略開始 + upTo(4);
    if (answer.省略開始 > 0) all.push_back({Omission, answer.省略開始, answer.省略終了, 0, {}});
    const int literals = 1 + upTo(6);
    const int start = 1 + upTo(18);
    const int length = 1 + upTo(6);
    const int code = 1 + upTo(182);
    all.push_back({Coded, start, start + length - 1, code, contractionText(code)});
    answer.同 = digits(answer.省略開始, 2) + digits(answer.省略終了, 2) + digits(1, 2) +
                digits(literals, 2) + digits(start, 2) + digits(length, 2) + digits(code, 3);
    for (int i = 0; i < literals; ++i) {
      // From an insertion, which takes nothing, to an end behind the answer's.
      const int from = 1 + upTo(23);
      const Substitution s{Literal, from, from - 1 + upTo(5), 0, QString(upTo(4), QChar(u'A' + i))};
      all.push_back(s);
      answer.同 += digits(s.start, 2) + digits(s.end, 2) +
                   digits(static_cast<int>(s.text.size()), 2) + s.text;
    }
    const QStringList expected = allCombinations(answer.正, all);
    QStringList texts;
    for (const Variant& variant : ExpandAnswers(answer))
      texts.append(variant.literal ? variant.text + u'*' : variant.text);
    texts.sort();
    const bool tooMany = expected.size() > maxVariants;
    EXPECT_EQ(texts, tooMany ? QStringList() : expected) << qPrintable(answer.同);
    expanded += !tooMany;
  }
  EXPECT_GT(expanded, 1000);
}

TEST(ExpansionTest, ContractionTableKnowsItsPairs) {
  EXPECT_EQ(contractionText(182), u"They'd "_s);
  EXPECT_EQ(contractionText(0) + contractionText(183), QString());
  EXPECT_EQ(contractionCode(u"cannot", u"can't"), 103);
  EXPECT_EQ(contractionCode(u"Where are", u"Where're"), 144);
  EXPECT_EQ(contractionCode(u"There has ", u"There's "), 0);
  EXPECT_FALSE(contractionFits(2, u"I am "));
}

TEST(TextFileTest, ReadsUtf8AndCodePage932) {
  const QString text = u"～ or so　－・①髙\r\nsecond"_s;
  QStringEncoder codePage932("Shift_JIS");
  EXPECT_EQ(decodeText(codePage932(text)), text);
  EXPECT_EQ(decodeText(text.toUtf8()), text);
  EXPECT_EQ(decodeText("\xEF\xBB\xBF" + text.toUtf8()), text);
  EXPECT_EQ(decodeText(QByteArray("\x81\x60\x81\x7C\xA5", 5)), u"～－･"_s);
  EXPECT_EQ(decodeText(QByteArray("ab\0cd", 5)), std::nullopt);
  EXPECT_EQ(decodeText(QByteArray("\xFF\xFE\xFD\x80\xA0")), std::nullopt);
  EXPECT_EQ(splitLines(u"a\r\nb\n\nc\r"_s).join(u'|'), u"a|b||c"_s);
  EXPECT_EQ(splitLines(QString()), QStringList());
}

TEST(TextTest, ReadsNumbersUpToTheFirstOtherCharacter) {
  EXPECT_EQ(numberOf(u" 12x"), 12);
  EXPECT_EQ(numberOf(u"x12"), 0);
  EXPECT_EQ(numberOf(u"１２"), 0) << "full-width digits are no digits";
  EXPECT_EQ(numberOf(u"-5"), -5);
  EXPECT_DOUBLE_EQ(realOf(u"0.50.7"), 0.5);
  EXPECT_EQ(trimBlanks(u"  a b\u3000 "), u"a b\u3000"_s);
  EXPECT_EQ(cut(u"abc", 3, 5) + cut(u"abc", 9, 2) + cut(u"abc", -1, 3), u"ca"_s);
}

}  // namespace
}  // namespace tavoli
