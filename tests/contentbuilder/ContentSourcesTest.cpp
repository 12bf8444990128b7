#include <gtest/gtest.h>

#include "contentbuilder/ContentSources.h"
#include "data/Schema.h"
#include "tests/support/Print.h"

namespace tavoli {
namespace {

const QByteArray wordsFile = "words/JTDIC/a.tsv";
const QByteArray otherWordsFile = "words/STDIC/a.tsv";
const QByteArray sentencesFile = "sentences/中学/a.txt";
const QByteArray header = "英語\tレベル\t発音\t同\t日\tコメント\t読上\n";

SourceFile source(const QByteArray& name, const QByteArray& bytes) {
  return {QString::fromUtf8(name), bytes};
}

TEST(ContentSourcesTest, CompilesToPackedRecords) {
  const std::vector<SourceFile> files = {
      source("README.md", "not UTF-8: \xFF"),
      source(
          "words/Travel/a.tsv",
          "\xEF\xBB\xBF" + header +
              "# a comment\r\n\r\nbest\t3\tァbe′st\tfinest|top \t最もよい| [最]善\t最善％道\tbest!"
              "\r\nBest\t10\t\t\t〜人名\t\n"),
      source(wordsFile, header),
      source(otherWordsFile, header),
      source("words/Travel/b.tsv", header + "\"\"\"a\"\" b\"\t0\t\t\t一\t\"\"\"A.\"\"  甲\"\n"),
      source(sentencesFile,
             "# heading\n000120\n問 彼は？％He (   ) (   ) me.  \n"
             "# inside\n答 <It >is\n"
             "答 [That ]{I am ~I'm }a {big/large/huge} \\{<1/2\\}~\n"
             "或 That I am {a big/the} \\{<1/2\\}~\n"
             "答 {I had ~146}been\n"
             "答 I think {/that /it }he is{/ so}\n"
             "コ {コ}メ\n読 He is.\n\n\n000110\n問 次\n答 a"),
  };
  Problems problems;
  const std::vector<ContentTable> tables = readContent(files, problems);
  for (const Problem& problem : problems) ADD_FAILURE() << qPrintable(problem.message);
  ASSERT_EQ(tables.size(), 4);
  EXPECT_EQ(tables[1].name, tableJTDIC);
  EXPECT_EQ(tables[2].name, tableSTDIC);
  EXPECT_EQ(tables[3].name, QStringLiteral("Travel"));

  const std::vector<ContentRow> sentences = {
      {QStringLiteral("000120"), QString(),
       QStringLiteral("彼は？％He (   ) (   ) me.|030005It is00000000^"
                      "000023That I am a big {<1/2}~010501030605001131505large131504huge"
                      "111503the^000010I had been000001000106146^"
                      "000013I think he is00000003090805that 090803it 141303 so^|{コ}メ"),
       QStringLiteral("He is.")},
      {QStringLiteral("000110"), QString(), QStringLiteral("次|000001a00000000^|"), QString()},
  };
  EXPECT_EQ(tables[0].rows, sentences);
  const std::vector<ContentRow> words = {
      {QStringLiteral("best"), QStringLiteral("03"),
       QStringLiteral("ァbe′st|finest^top^|000最もよい^000[最]善^|最善％道"),
       QStringLiteral("best!")},
      {QStringLiteral("Best"), QStringLiteral("10"), QStringLiteral("||000～人名^|"), QString()},
      {QStringLiteral("\"a\" b"), QStringLiteral("00"), QStringLiteral("||000一^|\"A.\"  甲"),
       QString()},
  };
  EXPECT_EQ(tables[3].rows, words);
}

/// Problems of the words file with that row in its second line, or of that sentences file.
struct Mistake {
  const char* name;
  QByteArray text;
  int line;
  const char* part;  ///< of the message
};

void expectEach(const QByteArray& file, const QByteArray& before,
                const std::vector<Mistake>& mistakes) {
  for (const Mistake& mistake : mistakes) {
    SCOPED_TRACE(mistake.name);
    Problems problems;
    std::vector<SourceFile> files = {source(wordsFile, header), source(otherWordsFile, header)};
    std::erase_if(files, [&](const SourceFile& f) { return f.name == QString::fromUtf8(file); });
    files.push_back(source(file, before + mistake.text));
    readContent(files, problems);
    for (const Problem& problem : problems)
      SCOPED_TRACE(testing::Message() << problem.line << ": " << qPrintable(problem.message));
    EXPECT_EQ(problems.size(), 1);
    if (problems.empty()) continue;
    EXPECT_EQ(problems[0].file, QString::fromUtf8(file));
    EXPECT_EQ(problems[0].line, mistake.line);
    EXPECT_TRUE(problems[0].message.contains(QString::fromUtf8(mistake.part)))
        << qPrintable(problems[0].message);
  }
}

TEST(ContentSourcesTest, NamesEveryMistakeInAWordsFile) {
  const QByteArray many = "x" + QByteArray("|x").repeated(19);
  const QByteArray longest = QByteArray("k").repeated(60);
  expectEach(wordsFile, {}, {{"no header", "a\t1\t\t\t意味\t\n", 1, "1行目"}});
  expectEach(
      wordsFile, header,
      {
          {"too few columns", "a\t1\t\t\t意味\n", 2, "列が5個"},
          {"no key", "\t1\t\t\t意味\t\n", 2, "「英語」が空"},
          {"blank before the key", " a\t1\t\t\t意味\t\n", 2, "空白"},
          {"long key", longest + "\t1\t\t\t意味\t\n" + longest + "x\t1\t\t\t意味\t\n", 3, "60文字"},
          {"reserved key", "Zzzz\t1\t\t\t意味\t\n", 2, "zzzz"},
          {"key twice", "a\t1\t\t\t意味\t\nA\t1\t\t\t意味\t\na\t1\t\t\t意味\t\n", 4, "a.tsv:2"},
          {"level too high", "a\t11\t\t\t意味\t\n", 2, "レベル"},
          {"no level", "a\t\t\t\t意味\t\n", 2, "レベル"},
          {"opening quote alone", "a\t1\t\t\t\"b\" c\t\n", 2, "表計算"},
          {"quote left open", "a\t1\t\t\t\"b\t\n", 2, "表計算"},
          {"no meaning", "a\t1\t\t\t\t\n", 2, "意味がありません"},
          {"empty meaning", "a\t1\t\t\t一||三\t\n", 2, "「日」に空の要素"},
          {"empty synonym", "a\t1\t\tb| \t一\t\n", 2, "「同」に空の要素"},
          {"twenty meanings", "a\t1\t\t\t" + many + "\t\n", 2, "「日」は19個"},
          {"separator in the comment", "a\t1\t\t\t一\tb|c\n", 2, "「コメント」に「|」"},
          {"unpaired mark", "a\t1\t{b\t\t一\t\n", 2, "「発音」の記号"},
          {"nested marks", "a\t1\t\t\t[{一}]\t\n", 2, "「日」の記号"},
          {"another encoding", "a\t1\t\t\t一\t\nb\t1\t\t\t\x88\xEA\t\n", 3, "UTF-8"},
      });
}

TEST(ContentSourcesTest, NamesEveryMistakeInASentencesFile) {
  const QByteArray start = "000010\n問 次\n";
  const QByteArray many = QByteArray("答 a\n").repeated(20);
  const QByteArray x100 = QByteArray("x").repeated(100);
  expectEach(sentencesFile, {},
             {
                 {"short number", "00010\n問 次\n答 a\n", 1, "6文字"},
                 {"another course's number", "500000\n問 次\n答 a\n", 1, "中学の範囲"},
                 {"letter in the number", "00a010\n問 次\n答 a\n", 1, "数字6文字"},
                 {"number twice", start + "答 a\n\n" + start + "答 a\n", 5, "中学/a.txt:1"},
                 {"empty line inside", start + "答 a\n\nコ メ\n問 次\n答 a\n", 5, "空行"},
                 {"no question", "000010\n答 a\n", 1, "「問」がない"},
                 {"empty question", "000010\n問\n答 a\n", 1, "「問」がない"},
                 {"no answer", "000010\n問 次\n", 1, "「答」がありません"},
             });
  expectEach(
      sentencesFile, start,
      {
          {"unknown tag", "答 a\n解 b\n", 4, "行の始め"},
          {"tag without a blank", "答 a\n読み\n", 4, "行の始め"},
          {"two spoken texts", "答 a\n読 a\n読 a\n", 5, "「読」が二つ"},
          {"unpaired mark in the comment", "答 a\nコ ]a[\n", 4, "「コ」の記号"},
          {"separator in the spoken text", "答 a\n読 ^\n", 4, "「読」に「^」"},
          {"twenty answers", many, 1, "19個"},
          {"empty answer", "答\n", 3, "答が空"},
          {"answer ends with a blank", "答 a{ b/ c }\n或 {a b/c} \n答 [a ]\n", 5, "空白"},
          {"long answer", "答 " + x100.repeated(10) + "\n", 3, "999文字"},
          {"separator in an answer", "答 a|b\n", 3, "答に「|」"},
          {"alternatives of nothing", "或 a\n答 a\n", 3, "前に「答」"},
          {"alternatives of another answer", "答 a b\n或 {a/c} d\n", 4, "違います"},
          {"other given characters", "答 <a >b\n或 <a> b\n", 4, "違います"},
          {"many given characters", "答 <" + x100 + ">a\n", 3, "与える文字"},
          {"given part left open", "答 <a b\n", 3, "「<」に対応"},
          {"given part across another", "答 <{a>b/c}\n", 3, "交差"},
          {"part left open", "答 a [b\n", 3, "「[」に対応"},
          {"part never opened", "答 a} b\n", 3, "「}」に対応"},
          {"part closed by the other bracket", "答 {a/b] c\n", 3, "「]」に対応"},
          {"part inside a part", "答 {a [b]/c}\n", 3, "「{」の中に「[」"},
          {"braces without alternatives", "答 {a} b\n", 3, "「~」も「/」も"},
          {"two kinds in one part", "答 {I am ~I'm /we} b\n", 3, "一緒に"},
          {"empty part", "答 a []b\n", 3, "空です"},
          {"insertion of nothing", "答 a {/}c\n", 3, "後ろの語句が空"},
          {"empty alternative", "答 {a//b} c\n", 3, "後ろの語句が空"},
          {"unknown escape", "答 a\\b\n", 3, "「\\」"},
          {"no such contraction", "答 {is~isn't} it\n", 3, "短縮形の表"},
          {"number of another contraction", "答 {I had ~153}it\n", 3, "153番"},
          {"number beyond the table", "答 {I had ~4294967442}it\n", 3, "短縮形の表"},
          {"two parts left out", "答 [a ]b c\n或 a [b ]c\n", 3, "一度だけ"},
          {"part far behind", "答 " + x100 + "{am/is}\n", 3, "99文字目"},
          {"long alternative", "答 {a/" + x100 + "}\n", 3, "99文字まで"},
          {"eleven alternatives", "答 {a/1/2/3/4/5/6/7/8/9/10/11}\n", 3, "11個"},
          {"too many combinations", "答 {a/1}b{a/1}b{a/1}b{a/1}b{a/1}b{a/1}b{a/1}\n", 3, "100通り"},
      });
}

TEST(ContentSourcesTest, LooksAtAllFiles) {
  const QByteArray word = "a\t1\t\t\t意味\t\n";
  Problems problems;
  readContent(
      {source("notes.txt", "-"), source("sentences/中学.txt", ""),
       source("sentences/大学/a.txt", ""),
       source("sentences/専門/a.txt",
              "500020\n問 次\n答 a\n\n900a00\n問 次\n答 a\n\n999999\n問 次\n答 a\n"),
       source("sentences/専門/b.txt", "999999\n問 次\n答 a\n"),
       source("sentences/高校/a.txt", "500010\n問 [\n答 {\n"), source("words/BDIC/a.tsv", header),
       source("words/JTDIC/a.tsv", header + "a\tx\t\t\t\t\n"),
       source("words/JTDIC/b.tsv", header + word), source("words/JTDIC2/a.tsv", header),
       source("words/Travel/a.tsv", header + word), source("words/jtdic/a.tsv", header),
       source("words/sqlite_x/a.tsv", header), source("words/travel/a.tsv", header)},
      problems);
  QStringList places;
  for (const Problem& problem : problems)
    places.append(QStringLiteral("%1:%2").arg(problem.file).arg(problem.line));
  EXPECT_EQ(places.join(u' '),
            QStringLiteral(
                "notes.txt:1 sentences/中学.txt:1 sentences/大学/a.txt:1 sentences/専門/a.txt:1 "
                "sentences/専門/a.txt:5 sentences/専門/b.txt:1 sentences/高校/a.txt:2 "
                "sentences/高校/a.txt:3 words/BDIC/a.tsv:1 words/JTDIC/a.tsv:2 "
                "words/JTDIC/a.tsv:2 words/JTDIC/b.tsv:2 words/JTDIC2/a.tsv:1 "
                "words/jtdic/a.tsv:1 words/sqlite_x/a.tsv:1 words/travel/a.tsv:1 words/STDIC:0"));
}

}  // namespace
}  // namespace tavoli
