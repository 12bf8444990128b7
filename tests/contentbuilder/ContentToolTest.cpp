#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "contentbuilder/AnswerNotation.h"
#include "contentbuilder/ContentSources.h"
#include "contentbuilder/ContentStore.h"
#include "contentbuilder/ContentTool.h"
#include "data/Contractions.h"
#include "tests/support/Print.h"
#include "tests/support/Seed.h"
#include "tests/support/TestStore.h"

namespace tavoli {
namespace {

using test::TestStore;

/// Every field of every row, table by table, in key order.
QStringList allRows(const QString& path) {
  std::optional<Database> database = openDatabase(path).database;
  QStringList all = database ? database->TableDefs() : QStringList();
  all.removeIf([](const QString& table) { return table.startsWith(QStringLiteral("USys")); });
  for (const QString& table : QStringList(all)) {
    const auto rows = database->OpenRecordset(table);
    for (rows->MoveFirst(); !rows->atEOF(); rows->MoveNext()) {
      QString line = table + u' ' + rows->key();
      for (const QString& field :
           {fieldレベル, field記憶, field回数, field問正コ, field発同日コ, field読上})
        line += u' ' + rows->value(field).value_or(QStringLiteral("NULL"));
      all.append(line);
    }
  }
  return all;
}

class ContentToolTest : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* name : {"words/JTDIC/JTDIC.tsv", "words/STDIC/STDIC.tsv"}) write(name, header);
  }
  QString path(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }
  void write(const char* name, const QByteArray& bytes) {
    const QString file = path("content/") + QString::fromUtf8(name);
    EXPECT_EQ(files.makeFolder(QFileInfo(file).path()), FileResult::Ok);
    ASSERT_EQ(files.write(file, bytes), FileResult::Ok);
  }
  static QStringList messages(const Problems& problems) {
    QStringList texts;
    for (const Problem& problem : problems) texts.append(problem.file + problem.message);
    return texts;
  }

  const QByteArray header = "英語\tレベル\t発音\t同\t日\tコメント\t読上\n";
  SystemFiles files;
  ContentTool tool{files};
  QTemporaryDir folder;
};

TEST_F(ContentToolTest, BuildsAWholeDatabaseOfNewItems) {
  write("words/Travel/x.tsv", header +
                                  "visa\t7\t\t\t査証\t\t\n"
                                  "～ abroad\t9\t\t\t海外へ\t\tabroad\n");
  write("sentences/高校/高校.txt", "500010\n問 次\n答 a\n");
  ASSERT_EQ(messages(tool.build(path("content"), path("a.mdb"), false)), QStringList());
  EXPECT_EQ(allRows(path("a.mdb")),
            (QStringList{
                tableBDIC,
                tableJTDIC,
                tableSTDIC,
                QStringLiteral("Travel"),
                QStringLiteral("BDIC 500010 NULL 0 00 次|000001a00000000^| NULL NULL"),
                QStringLiteral("JTDIC zzzzzzzzzzzzzzzzzzzz1 00 0 00 NULL  NULL"),
                QStringLiteral("STDIC zzzzzzzzzzzzzzzzzzzz1 00 0 00 NULL  NULL"),
                QStringLiteral("Travel ～ abroad 09 0 00 NULL ||000海外へ^| abroad"),
                QStringLiteral("Travel visa 07 0 00 NULL ||000査証^| NULL"),
                QStringLiteral("Travel zzzzzzzzzzzzzzzzzzzz1 00 0 00 NULL  NULL"),
            }));
}

TEST_F(ContentToolTest, ReplacesNothingUnasked) {
  write("sentences/高校/高校.txt", "500010\n問 次\n答 a\n");
  ASSERT_TRUE(tool.build(path("content"), path("a.mdb"), false).empty());
  const QStringList before = allRows(path("a.mdb"));
  write("sentences/高校/高校.txt", "500020\n問 次\n答 a\n");
  EXPECT_EQ(tool.build(path("content"), path("a.mdb"), false).size(), 1);
  EXPECT_EQ(tool.dump(path("a.mdb"), path("content"), false).size(), 3);
  EXPECT_FALSE(files.exists(path("content/sentences/中学"))) << "all or nothing";
  EXPECT_EQ(allRows(path("a.mdb")), before);
  EXPECT_TRUE(tool.build(path("content"), path("a.mdb"), true).empty());
  EXPECT_NE(allRows(path("a.mdb")), before);

  write("sentences/高校/高校.txt", "500020\n問 次\n");
  const QStringList sound = allRows(path("a.mdb"));
  EXPECT_EQ(tool.build(path("content"), path("a.mdb"), true).size(), 1);
  EXPECT_EQ(tool.build(path("content"), path("b.mdb"), true).size(), 1);
  EXPECT_EQ(allRows(path("a.mdb")), sound);
  EXPECT_FALSE(files.exists(path("b.mdb")));
}

TEST_F(ContentToolTest, DeliveredContentComesBackFromADump) {
  const QString content = QStringLiteral(TAVOLI_CONTENT_FOLDER);
  ASSERT_EQ(messages(tool.build(content, path("a.mdb"), false)), QStringList());
  ASSERT_EQ(messages(tool.dump(path("a.mdb"), path("dumped"), false)), QStringList());
  ASSERT_EQ(messages(tool.build(path("dumped"), path("b.mdb"), false)), QStringList());
  EXPECT_GT(allRows(path("a.mdb")).size(), 100);
  EXPECT_EQ(allRows(path("a.mdb")), allRows(path("b.mdb")));
}

TEST_F(ContentToolTest, ADumpKeepsFilesOrderAndHeadings) {
  const std::pair<const char*, QByteArray> sources[] = {
      {"words/JTDIC/JTDIC.tsv", header + "# 動詞\n# （一年）\ngo\t1\t\t\t行く\t\n"},
      {"words/JTDIC/b.tsv", header + "be\t1\t\t\tである\t\n# 名詞\nant\t1\t\t\tあり\t\n# 終り\n"},
      {"sentences/中学/a.txt", "# 文\n000020\n問 次\n答 a\n\n# 次\n000010\n問 二\n答 b\n"}};
  for (const auto& [name, bytes] : sources) write(name, bytes);
  ASSERT_EQ(messages(tool.build(path("content"), path("a.mdb"), false)), QStringList());
  std::optional<Database> database = openDatabase(path("a.mdb")).database;
  ASSERT_TRUE(database->createTable(QStringLiteral(".."))) << "a table of another's";
  Problems problems;
  for (const SourceFile& source : dumpContent(*database, QString(), problems))
    EXPECT_FALSE(source.name.contains(QStringLiteral(".."))) << qPrintable(source.name);
  EXPECT_EQ(problems.size(), 1);
  database.reset();
  tool.dump(path("a.mdb"), path("dumped"), false);
  for (const auto& [name, bytes] : sources)
    EXPECT_EQ(files.read(path("dumped/") + QString::fromUtf8(name)), bytes) << name;
}

TEST_F(ContentToolTest, ADumpLeavesOutWhatIsDamagedAndNamesIt) {
  TestStore store;
  const QString good = QStringLiteral("次|002001a00000000^|");
  store.addSentence(QStringLiteral("000010"), good, MemoryState::完全);
  store.addSentence(rowPassword, QStringLiteral("pass"));
  const QString number = QStringLiteral("00%1");
  const char* const damaged[] = {
      "次|000001a^|",                       // no tail
      "次|000099a00000000^|",               // longer than its element
      "次|000004that02060000^|",            // a part beyond the end
      "次|000004that03020000^|",            // a part that ends before it begins
      "次|000005I am 000001000105002^|",    // a contraction of something else
      "次|000005I am 000001000105999^|",    // no contraction at all
      "次|000004that0000000101040010^|",    // an empty alternative, then a rest
      "次|990004that00000000^|",            // more given than there is
      "次|000004that00000000^",             // a field is missing
      "次|000004th\nt00000000^|",           // a line break
      "[次|000001a00000000^|",              // a mark alone
      "次|000001a00000000^000000000000^|",  // an empty answer
  };
  int count = 0;
  for (const char* record : damaged)
    store.addSentence(number.arg(++count + 2000), QString::fromUtf8(record));
  store.addSentence(QStringLiteral("Z00000"), good);
  store.addWord(tableJTDIC, QStringLiteral("#1"), QStringLiteral("||000一^|"));
  store.addWord(tableJTDIC, QStringLiteral("a"), QStringLiteral("||299一^|"));
  store.addWord(tableJTDIC, QStringLiteral("a"), QStringLiteral("||000二^|"));
  store.addWord(tableJTDIC, QStringLiteral("b"), QStringLiteral("||000一^000^|"));
  store.addWord(tableJTDIC, rowConditions, QStringLiteral("?"));
  store.close();

  const QString said = messages(tool.dump(store.path(), path("dumped"), false)).join(u'\n');
  EXPECT_EQ(said.count(u'\n') + 1, count + 4) << qPrintable(said);
  for (; count > 0; --count)
    EXPECT_TRUE(said.contains(QStringLiteral("BDICの「%1」").arg(number.arg(count + 2000))));
  for (const QString& place : {QStringLiteral("BDICの「Z00000」"), QStringLiteral("JTDICの「#1」"),
                               QStringLiteral("JTDICの「a」"), QStringLiteral("JTDICの「b」")})
    EXPECT_TRUE(said.contains(place)) << qPrintable(said);
  EXPECT_EQ(files.read(path("dumped/sentences/中学/中学.txt")),
            QByteArray("000010\n問 次\n答 a\n"));
  EXPECT_FALSE(files.exists(path("dumped/sentences/専門")));
  EXPECT_EQ(files.read(path("dumped/words/JTDIC/JTDIC.tsv")), header + "a\t0\t\t\t一\t\n");
}

TEST_F(ContentToolTest, TellsByItsExitStatus) {
  const QByteArray word = header + "go\t4\t\t\t行く\t\n";
  for (const char* name : {"words/STDIC/STDIC.tsv", "../warned/words/STDIC/a.tsv"})
    write(name, word);
  write("../warned/words/JTDIC/a.tsv", header);
  write("accepted/a.txt", "例文の数 STDIC/go\n");
  write("../mistakes/sentences/中学/a.txt", "000010\n問 次\n");
  ASSERT_EQ(files.write(path("list"), "go\nno\n"), FileResult::Ok);
  const QString content = path("content");
  const QString warned = path("warned");
  const QString check = QStringLiteral("check");
  const struct {
    const char* name;
    QStringList arguments;
    int status;
    QString said;
  } cases[] = {
      {"sound", {check, QStringLiteral(TAVOLI_CONTENT_FOLDER)}, 0, QString()},
      {"mistakes", {check, path("mistakes")}, 1, path("mistakes/sentences/中学/a.txt:1: 「答」")},
      {"warnings", {check, warned}, 0, path("warned/words/STDIC/a.tsv:2: 警告: ")},
      {"warnings refused", {check, warned, QStringLiteral("--strict")}, 1, QString()},
      {"accepted", {check, content, QStringLiteral("--strict")}, 0, QString()},
      {"coverage",
       {check, content, QStringLiteral("--coverage"), path("list"), QStringLiteral("--missing")},
       0,
       QStringLiteral("JTDIC: 0 / 2 (0.0 %)\nSTDIC: 1 / 2 (50.0 %)\nno\n")},
      {"no list", {check, content, QStringLiteral("--coverage"), path("x")}, 1, path("x: 一覧を")},
      {"no target", {QStringLiteral("build"), content}, 2, QStringLiteral("-o で書き込み先を")},
      {"unknown option", {check, QStringLiteral("--all")}, 2, QString()},
      {"nothing to dump",
       {QStringLiteral("dump"), path("x"), QStringLiteral("-o"), path("y")},
       1,
       path("x: データベースを")},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    QProcess process;
    process.start(QStringLiteral(TAVOLI_CONTENT_TOOL), c.arguments);
    ASSERT_TRUE(process.waitForFinished());
    const QString said =
        QString::fromUtf8(process.readAllStandardError() + process.readAllStandardOutput());
    EXPECT_EQ(process.exitCode(), c.status);
    EXPECT_TRUE(said.contains(c.said)) << qPrintable(said);
  }
}

/// Random items that the notation can express.
class RandomContent {
 public:
  explicit RandomContent(unsigned seed) : m_random(seed) {
    for (const QString& piece : m_pieces)
      for (int code = 1; code <= contractionCount; ++code)
        if (contractionFits(code, piece)) m_contractions.emplace_back(piece, code);
  }

  std::vector<ContentTable> tables() {
    std::vector<ContentTable> all = {{tableBDIC, {}}, {tableJTDIC, {}}, {tableSTDIC, {}}};
    for (int i = 0; i < 900; ++i) {
      all[0].rows.push_back({digits(i * 1000, 6), QString(), packRecord(sentence()), maybe()});
      all[1].rows.push_back(
          {QStringLiteral("k ") + digits(i, 4), digits(upTo(10), 2), packRecord(word()), maybe()});
    }
    return all;
  }

 private:
  int upTo(int n) { return static_cast<int>(m_random() % static_cast<unsigned>(n + 1)); }

  QString text() {
    static const QStringList marks = {QStringLiteral("{[x]}"), QStringLiteral("\\"),
                                      QStringLiteral("}{"), QStringLiteral("]")};
    QString text;
    for (int i = upTo(6); i >= 0; --i)
      text += m_marks && upTo(3) == 0 ? marks[upTo(3)] : m_pieces[upTo(13)];
    return trimBlanks(text);
  }
  QString maybe() { return upTo(2) == 0 ? text() : QString(); }

  Substitution substitution(const QString& 正) {
    using enum Substitution::Kind;
    const auto size = static_cast<int>(正.size());
    Substitution s{Literal, 1 + upTo(size), 0, 0, QString()};
    s.end = s.start + upTo(size) / 2;
    if (upTo(3) == 0 || s.end > size) s.end = s.start - 1;  // an insertion
    const auto& [span, code] =
        m_contractions[static_cast<size_t>(upTo(static_cast<int>(m_contractions.size()) - 1))];
    const auto found = static_cast<int>(正.indexOf(span, s.start / 3));
    if (found >= 0 && upTo(9) > 0) {
      const int length = static_cast<int>(span.size());
      return {Coded, found + 1, found + length, code, contractionText(code)};
    }
    s.text = text();
    return s;
  }

  SubQuestion answer() {
    m_marks = true;
    while (true) {
      AnswerLine line{text(), 0, {}};
      if (upTo(2) == 0) line.先頭文字数 = upTo(static_cast<int>(line.正.size()));
      for (int i = upTo(7); i > 0; --i) line.substitutions.push_back(substitution(line.正));
      Substitution omission = substitution(line.正);
      omission.kind = Substitution::Kind::Omission;
      if (omission.start <= omission.end && upTo(1) == 0) line.substitutions.push_back(omission);
      QStringList problems;
      SubQuestion packed = packAnswer(line, problems);
      if (problems.isEmpty()) return packed;
    }
  }

  CurrentRecord sentence() {
    CurrentRecord record;
    record.sentence = true;
    for (int i = upTo(3); i >= 0; --i) record.小問.push_back(answer());
    m_marks = false;
    record.問題文 = text();
    record.コメント = maybe();
    return record;
  }

  CurrentRecord word() {
    CurrentRecord record;
    record.発音 = maybe();
    for (int i = upTo(3); i > 0; --i) record.同.append(text());
    for (int i = upTo(18); i >= 0; --i) {
      record.小問.emplace_back();
      record.小問.back().日本語 = text();
    }
    record.コメント = maybe();
    return record;
  }

  const QStringList m_pieces = {
      QStringLiteral("I am "),   QStringLiteral("is not"),  QStringLiteral("he has "),
      QStringLiteral("cannot"),  QStringLiteral("We had "), QStringLiteral("~"),
      QStringLiteral("1/2"),     QStringLiteral("<"),       QStringLiteral(">"),
      QStringLiteral("～％"),    QStringLiteral("a b"),     QStringLiteral("。#"),
      QStringLiteral("can not"), QStringLiteral("We'd ")};
  std::vector<std::pair<QString, int>> m_contractions;  ///< full form and code
  std::mt19937 m_random;
  bool m_marks = false;  ///< texts may hold marks, paired or not
};

TEST_F(ContentToolTest, AnythingSoundComesBackFromADump) {
  const unsigned seed = test::randomSeed();
  SCOPED_TRACE(testing::Message() << "seed " << seed);
  const std::vector<ContentTable> tables = RandomContent(seed).tables();
  std::optional<Database> database = createDatabase(path("a.mdb"));
  ASSERT_TRUE(storeContent(tables, {}, *database));
  Problems problems;
  const std::vector<SourceFile> sources = dumpContent(*database, QString(), problems);
  const std::vector<ContentTable> again = readContent(sources, problems);
  EXPECT_EQ(messages(problems), QStringList());
  ASSERT_EQ(again.size(), tables.size());
  for (size_t t = 0; t < tables.size(); ++t) {
    for (size_t i = 0; i < std::min(tables[t].rows.size(), again[t].rows.size()); ++i)
      ASSERT_EQ(again[t].rows[i].record, tables[t].rows[i].record);
    EXPECT_EQ(again[t].rows, tables[t].rows);
  }
}

TEST(ReadingsTest, AllOfTheDeliveredContentCanBeSaid) {
  const auto reading = KanaReading::open(
      KanaReading::dictionariesFor(QFileInfo(QStringLiteral(TAVOLI_CONTENT_TOOL)).path()));
  if (!reading) GTEST_SKIP() << "built without MeCab";
  SystemFiles files;
  const ContentTool::ReadOut found =
      ContentTool(files).readings(QStringLiteral(TAVOLI_CONTENT_FOLDER), *reading);
  EXPECT_GT(found.readings.size(), 5000);
  static const QRegularExpression said(QStringLiteral(
      "^(?:[ァ-ヴー][ァ-ヴー、。？]*|\\[[A-Za-z0-9À-ɏ][A-Za-z0-9À-ɏ' ,.!?;:&$%-]*\\])+$"));
  // In each of these a kanji that nobody can read would leave no trace but its absence.
  static const QRegularExpression kanji(QStringLiteral("\\p{Han}"));
  for (const ContentReading& line : found.readings) {
    EXPECT_TRUE(said.match(line.reading).hasMatch())
        << qPrintable(line.key + u' ' + line.text + u' ' + line.reading);
    EXPECT_GE(line.reading.size(), line.text.count(kanji)) << qPrintable(line.text);
  }
}

}  // namespace
}  // namespace tavoli
