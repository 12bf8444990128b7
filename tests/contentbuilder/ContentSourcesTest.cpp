#include <gtest/gtest.h>

#include "contentbuilder/ContentChecks.h"
#include "contentbuilder/ContentNotes.h"
#include "contentbuilder/ContentSources.h"
#include "contentbuilder/LessonChecks.h"
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
    const std::vector<ContentTable> tables = readContent(files, problems);
    Warnings warnings;
    checkWording(tables, problems, warnings);
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

TEST(ContentSourcesTest, NamesEveryMistakeInAWord) {
  const auto row = [](const QByteArray& key, const QByteArray& 発音, const QByteArray& 同,
                      const QByteArray& 日 = "一", const QByteArray& コメント = "") {
    return key + "\t1\t" + 発音 + "\t" + 同 + "\t" + 日 + "\t" + コメント + "\n";
  };
  const QByteArray sound =
      row("o'clock", "ァo'clo′ck", "Mr.|24/7") + row("Q&A", "発キ′ュー", "A-B") +
      row("between ～ and ～", "", "", "甲|乙", "Up 10%.  10%増。％Up 5% a year.  増。");
  expectEach(
      wordsFile, header + sound,
      {
          {"curly quote in the key", row("it’s", "", ""), 5, "「英語」に「’」"},
          {"full-width letter in the key", row("ａ", "", ""), 5, "「英語」に「ａ」"},
          {"no-break blank in the key", row("a\u00A0b", "", ""), 5, "「英語」に"},
          {"two blanks in a synonym", row("a", "", "b  c"), 5, "「同」に空白が二つ"},
          {"meaning twice", row("a", "", "", "一|二|一"), 5, "「日」に「一」が二つ"},
          {"synonym twice", row("a", "", "b|b"), 5, "「同」に「b」が二つ"},
          {"synonym is the key", row("e-mail", "", "mail|email"), 5, "「email」は「英語」と同じ"},
          {"comma in a synonym", row("a", "", "b, c"), 5, "「b, c」に「,」"},
          {"Japanese comma in a synonym", row("a", "", "b、c"), 5, "「,」か「、」"},
          {"full-width bar", row("a", "", "", "一｜二"), 5, "全角の「｜」"},
          {"half-width line break", row("a", "", "", "一", "B.  乙。%C.  丙。"), 5, "半角の「%」"},
          {"half-width line break behind a digit", row("a", "", "", "一", "甲 7%At"), 5, "「%」"},
          {"decomposed kana", row("a", "", "", "か\u3099"), 5, "分解された"},
          {"invisible blank", row("a", "", "", "一", "\u200B甲"), 5, "U+200B"},
          {"two stresses", row("aba", "a′ba′", ""), 5, "「′」は一つだけ"},
          {"warning without a stress", row("aba", "ァaba", ""), 5, "「′」がありません"},
          {"stressed consonant", row("aba", "ァab′a", ""), 5, "母音の字"},
          {"stress in front", row("aba", "′aba", ""), 5, "母音の字"},
          {"stressed small kana", row("a", "発フェ′ア", ""), 5, "小さくない片仮名"},
          {"another spelling", row("colour", "ァco′lor", ""), 5, "つづり「color」"},
      });
}

TEST(ContentSourcesTest, NamesEveryMistakeInASentence) {
  const QByteArray sound =
      "000010\n問 空所を。％I (   ) not (late).％A: It (   ).\n答 am\n答 {is/'s}\n\n"
      "000020\n問 次の英文に誤りがあれば訂正しなさい。％彼は。％％He go there.\n"
      "答 <受動態=>He goes to colo[u]r{/ now}.\n\n"
      "000030\n問 並べかえなさい。％I / am / a boy\n答 {/Yes, }I am 5% old[, too].\n\n";
  const QByteArray block = "000040\n問 英語に。\n";
  const int line = static_cast<int>(sound.count('\n')) + 1;
  expectEach(
      sentencesFile, sound,
      {
          {"answer given whole", block + "答 <am>\n", line, "全部与えられ"},
          {"omission without its blank", block + "答 I see [that] he is in.\n", line,
           "空白が余ります"},
          {"omission with both blanks", block + "答 I see[ that ]he is in.\n", line,
           "空白が足りません"},
          {"blank before the mark", block + "答 I am in [now].\n", line, "余ります"},
          {"alternative without its blank", block + "答 I {am /was}in it.\n", line, "足りません"},
          {"insertion without its blank", block + "答 I see {/that}he is in.\n", line,
           "足りません"},
          {"alternative like the answer", block + "答 I {am/am} in.\n", line, "同じ言い方「am」"},
          {"alternative twice", block + "答 I {am/was/was} in.\n", line, "同じ言い方「was」"},
          {"full-width in an answer", block + "答 I ａm in.\n", line, "「ａ」は使えません"},
          {"full-width in an alternative", block + "答 I {am/ａｍ} in.\n", line,
           "別の言い方に「ａ」"},
          {"two blanks in an answer", block + "答 I am  in.\n", line, "空白が二つ"},
          {"no mark", block + "答 I am in\n", line, "終わりに . ? !"},
          {"alternative without the mark", block + "答 I am {in./out}\n", line, "なくなります"},
          {"more blanks", "000040\n問 We (   ) (   ).\n答 are\n", line, "空所が2個で、「答」が1個"},
          {"fewer blanks", "000040\n問 We (   ).\n答 are\n答 in\n", line, "空所が1個で"},
          {"another blank", "000040\n問 We (  ).\n答 are\n", line, "かっこと三つの空白"},
          {"full-width blank", "000040\n問 We （　）.\n答 are\n", line, "かっこと三つの空白"},
          {"question without a mark", "000040\n問 Is (   ) in it\n答 he\n", line, "「問」の英文"},
          {"nothing to correct",
           "000040\n問 次の英文に誤りがあれば訂正しなさい。％He go.\n答 He goes.\n", line,
           "訂正する英文"},
          {"half-width line break", "000040\n問 次。%A\n答 a\n", line, "半角の「%」"},
          {"curly quote in the comment", block + "答 a\nコ It’s\n", line, "「コ」に「’」"},
          {"question of another number",
           "000040\n問 空所を。％[I] (   ) not (late).％A: It (   ).\n答 a\n答 b\n", line,
           "文番000010"},
      });
}

TEST(ContentSourcesTest, HoldsLessonsAgainstTheTables) {
  const std::vector<ContentTable> tables = {
      {tableBDIC, {{QStringLiteral("000010"), {}, {}, {}}}},
      {tableJTDIC, {{QStringLiteral("look at"), {}, {}, {}}}}};
  Problems problems;
  checkLessons(
      {source("lessons/a.tav", "*題\r\n!題\r\nlook at\r\n000010･文\r\n\r\nlook\r\n000020･文\r\n"),
       source("lessons/b.txt", "look at\r\n")},
      tables, problems);
  QStringList places;
  for (const Problem& problem : problems)
    places.append(QStringLiteral("%1:%2").arg(problem.file).arg(problem.line));
  EXPECT_EQ(places.join(u' '),
            QStringLiteral("lessons/a.tav:5 lessons/a.tav:6 lessons/a.tav:7 lessons/b.txt:0"));
}

TEST(ContentSourcesTest, NamesMistakesInNumberAndRenames) {
  const std::vector<ContentTable> tables = {
      {tableBDIC, {{QStringLiteral("000020"), {}, {}, {}}}},
      {tableJTDIC, {{QStringLiteral("b"), {}, {}, {}}, {QStringLiteral("c"), {}, {}, {}}}}};
  const std::pair<QByteArray, const char*> cases[] = {
      {"# 題\n\na\tb\n000010\t000020\nx\ta\n", ""},
      {"a b\n", "1: 前の"},
      {"a\tb\na\tc\n", "2: 「a」の改名が二つ"},
      {"a\tx\n", "1: 「x」はどの表にも"},
      {"a\tx\nx\ta\n", "1: 「a」の改名が元に戻って|2: 「x」の改名が元に戻って"},
      {"b\tc\n", "1: 表JTDICに「b」も「c」も"},
  };
  for (const auto& [bytes, expected] : cases) {
    Problems problems;
    makeNotes({source("number.txt", "1\n"), source("renames.tsv", bytes)}, tables, problems);
    const QStringList parts = QString::fromUtf8(expected).split(u'|', Qt::SkipEmptyParts);
    ASSERT_EQ(static_cast<qsizetype>(problems.size()), parts.size()) << bytes.constData();
    for (size_t i = 0; i < problems.size(); ++i)
      EXPECT_TRUE(QStringLiteral("%1: %2")
                      .arg(problems[i].line)
                      .arg(problems[i].message)
                      .startsWith(parts[static_cast<qsizetype>(i)]))
          << qPrintable(problems[i].message);
  }
  Problems problems;
  makeNotes({source("number.txt", "x\n")}, tables, problems);
  EXPECT_EQ(problems.size(), 1);
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
