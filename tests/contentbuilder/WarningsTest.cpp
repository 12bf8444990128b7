#include <gtest/gtest.h>

#include "contentbuilder/AcceptedWarnings.h"
#include "contentbuilder/ContentChecks.h"
#include "contentbuilder/ContentSources.h"
#include "contentbuilder/Coverage.h"
#include "contentbuilder/WordForms.h"
#include "tests/support/Print.h"

namespace tavoli {
namespace {

SourceFile words(const char* table, const QByteArray& rows) {
  return {QStringLiteral("words/%1/a.tsv").arg(QLatin1String(table)),
          "英語\tレベル\t発音\t同\t日\tコメント\t読上\n" + rows};
}

Warnings warningsOf(const std::vector<SourceFile>& files) {
  Problems problems;
  Warnings warnings;
  checkWording(readContent(files, problems), problems, warnings);
  for (const Problem& problem : problems) ADD_FAILURE() << qPrintable(problem.message);
  return warnings;
}

QString names(const Warnings& warnings) {
  QStringList names;
  for (const Warning& warning : warnings) names.append(warning.name());
  return names.join(QStringLiteral(", "));
}

TEST(WarningsTest, TellWhatIsSeldomMeantInAWord) {
  const struct {
    const char* name;
    QByteArray row;
    const char* expected;
  } cases[] = {
      {"sound", "look for\t1\t\tseek\t～を捜す\tI'm looking everywhere for it.  捜す。\n", ""},
      {"no headword", "go\t1\t\t\t行く\tI come.  行く。\n", "例文に語なし JTDIC/go"},
      {"no Japanese", "go\t1\t\t\t行く\tI went.\n", "例文の形 JTDIC/go, 例文の数 JTDIC/go"},
      {"one blank", "go\t1\t\t\t行く\tI go. 行く。\n", "例文の形 JTDIC/go, 例文の数 JTDIC/go"},
      {"three blanks", "go\t1\t\t\t行く\tI go.   行く。\n", "例文の形 JTDIC/go, 例文の数 JTDIC/go"},
      {"one example for two", "go\t1\t\t\t行く|囲碁\tI go.  行く。\n", "例文の数 JTDIC/go"},
      {"slot at the end", "go ～ing\t1\t\t\t行く\tI go.  行く。\n", "末尾の～ JTDIC/go ～ing"},
      {"slot at a synonym's end", "go\t1\t\tlook ～\t行く\tI go.  行く。\n", "末尾の～ JTDIC/go"},
      {"slots for A and B", "A and B\t1\t\t～ and ～\tと\tUs and them.  例。\n", ""},
      {"answer in the meaning", "go\t1\t\t\t行く（Goの意）\tI go.  行く。\n",
       "答が問題に JTDIC/go"},
      {"part of another word", "go\t1\t\t\t行く（goes）\tI go.  行く。\n", ""},
      {"spoken fragment", "go\t1\t\t\t行く\tI go.  行く。％I {go to} へ\n",
       "例文の形 JTDIC/go, 断片の読上 JTDIC/go"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(names(warningsOf({words("JTDIC", c.row), words("STDIC", "")})),
              QString::fromUtf8(c.expected))
        << c.name;
}

TEST(WarningsTest, TellOfAnswersAndFragmentsInASentence) {
  const struct {
    const char* name;
    QByteArray block;
    const char* expected;
  } cases[] = {
      {"sound", "問 will を使って。％I (   ) go.\n答 will\nコ 「～だろう」は {will} です。\n", ""},
      {"blank filled in the question", "問 次。％Call him when he calls.％(   ) me.\n答 Call\n",
       "答が問題に 000010"},
      {"part of another word", "問 次。％He calls.％(   ) me.\n答 Call\n", ""},
      {"short word", "問 次。％Go to bed.％I go (   ) bed.\n答 to\n", ""},
      {"whole sentence", "問 次。％I am here.\n答 I am here.\n", "答が問題に 000010"},
      {"sentence that may be right",
       "問 次の英文に誤りがあれば訂正しなさい。％％I am here.\n答 I am here.\n", ""},
      {"fragment", "問 次。\n答 a\nコ {must not} は\n", "断片の読上 000010"},
      {"fragment before ～", "問 次。\n答 a\nコ look for ～は\n", "断片の読上 000010"},
      {"example",
       "問 次。\n答 a\nコ 甲。％look for  捜す％I am. 乙。％a/b cの％one語％write, wrote\n", ""},
      {"behind an empty line", "問 次。\n答 a\nコ 甲。％％must not は\n", ""},
  };
  for (const auto& c : cases)
    EXPECT_EQ(names(warningsOf({words("JTDIC", ""),
                                words("STDIC", ""),
                                {QStringLiteral("sentences/中学/a.txt"), "000010\n" + c.block}})),
              QString::fromUtf8(c.expected))
        << c.name;
}

TEST(WarningsTest, TellOfMeaningsThatWordsShareUnnamed) {
  const auto row = [](const QByteArray& key, const QByteArray& 同, const QByteArray& 日) {
    return key + "\t1\t\t" + 同 + "\t" + 日 + "\t" + key + ".  例。\n";
  };
  const Warnings warnings = warningsOf(
      {words("JTDIC", row("big", "large", "大きい") + row("large", "", "大きい、広い") +
                          row("wide", "", "（幅が）大きい、広い") + row("march", "", "行進") +
                          row("March", "", "行進")),
       words("STDIC", row("e-mail", "huge", "行進、送る")),
       words("Travel", row("huge", "", "送る")), words("Work", row("post", "", "送る"))});
  EXPECT_EQ(
      names(warnings),
      QStringLiteral("同じ意味 JTDIC/large = JTDIC/big, 同じ意味 JTDIC/march = STDIC/e-mail, "
                     "同じ意味 JTDIC/March = STDIC/e-mail, 同じ意味 STDIC/e-mail = JTDIC/march, "
                     "同じ意味 STDIC/e-mail = JTDIC/March, 同じ意味 STDIC/e-mail = Work/post, "
                     "同じ意味 Travel/huge = STDIC/e-mail, 同じ意味 Work/post = STDIC/e-mail"));
}

TEST(WarningsTest, AreAcceptedByName) {
  const QString kind = QStringLiteral("種");
  Warnings warnings = {{{}, kind, QStringLiteral("JTDIC/look at")},
                       {{}, kind, QStringLiteral("JTDIC/look")},
                       {{}, kind, QStringLiteral("JTDIC/look at")}};
  Problems problems;
  takeAccepted({{QStringLiteral("a"), "# 理由\n種 JTDIC/look at\n"},
                {QStringLiteral("b"), "\n別 JTDIC/look\n"},
                {QStringLiteral("c"), "\xFF"}},
               warnings, problems);
  EXPECT_EQ(names(warnings), QStringLiteral("種 JTDIC/look, 不要な行 別 JTDIC/look"));
  EXPECT_EQ(warnings.back().problem.line, 2);
  EXPECT_EQ(problems.size(), 1);
}

TEST(WarningsTest, HeadwordsAreFoundInTheirForms) {
  const char* const used[][2] = {{"be able to", "I'm able to."},
                                 {"cannot help doing", "I couldn't help it."},
                                 {"study", "He studies."},
                                 {"stop", "Stopping!"},
                                 {"die", "He is dying."},
                                 {"leaf", "Leaves fall."},
                                 {"knife", "Two knives."},
                                 {"buy", "I bought it."},
                                 {"happy", "the happiest"},
                                 {"make", "by making it"},
                                 {"picnic", "They picnicked."},
                                 {"make up one's mind", "He made up his mind."},
                                 {"between A and B", "between us and them"},
                                 {"put off", "Put it off."},
                                 {"year", "a one-year stay"},
                                 {"a.m.", "at 7 a.m."},
                                 {"will", "I won't."},
                                 {"do", "Don't."},
                                 {"have", "I've seen."},
                                 {"teacher", "the teacher's desk"},
                                 {"～ or so", "an hour or so"},
                                 {"A", "a B"}};
  const char* const unused[][2] = {{"again and again", "again and then"},
                                   {"go", "I come."},
                                   {"look for", "for a look"},
                                   {"do", "He is here."},
                                   {"be worth doing", "It is doing."},
                                   {"look at", "Look for it."},
                                   {"A", "no"}};
  for (const auto& [headword, sentence] : used)
    EXPECT_TRUE(uses(QLatin1String(sentence), QString::fromUtf8(headword))) << headword;
  for (const auto& [headword, sentence] : unused)
    EXPECT_FALSE(uses(QLatin1String(sentence), QString::fromUtf8(headword))) << headword;
}

TEST(WarningsTest, CoverageCountsWhatTheStagesBeforeTeach) {
  const auto table = [](const char* name, const QStringList& keys) {
    ContentTable made{QLatin1String(name), {}};
    for (const QString& key : keys) made.rows.push_back({key, {}, {}, {}});
    return made;
  };
  const std::vector<ContentTable> tables = {
      table("BDIC", {QStringLiteral("lend")}),
      table("JTDIC", {QStringLiteral("TV"), QStringLiteral("march")}),
      table("STDIC", {QStringLiteral("e-mail")}), table("Travel", {QStringLiteral("visa")})};
  const std::optional<Coverage> coverage = coverageOf(
      "headword\tparts of speech\tother spellings\n# 題\ntv\tnoun\t\nMarch\tnoun\t\n"
      "mail\tverb\tE-mail|email\nVisa\nvisa\nlend\n",
      tables);
  ASSERT_TRUE(coverage);
  EXPECT_EQ(coverage->headwords, 6);
  QStringList shares;
  for (const Coverage::Share& share : coverage->shares)
    shares.append(QStringLiteral("%1 %2").arg(share.table).arg(share.held));
  EXPECT_EQ(shares.join(u','), QStringLiteral("JTDIC 1,STDIC 2,Travel 3"));
  EXPECT_EQ(coverage->missing.join(u','), QStringLiteral("March,Visa,lend"));
}

}  // namespace
}  // namespace tavoli
