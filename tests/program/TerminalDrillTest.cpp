#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "tests/support/Pdf.h"
#include "tests/support/Print.h"
#include "tests/support/TestStore.h"

using namespace Qt::StringLiterals;

// Runs the program itself in the terminal, from login to the stored results.
namespace tavoli {
namespace {

class TerminalDrillTest : public testing::Test {
 protected:
  TerminalDrillTest() {
    for (int i = 1; i <= 6; ++i)
      store.addSentence(digits(i * 10, 6),
                        test::sentenceRecord(u"問題{%1}"_s.arg(i), {u"answer %1"_s.arg(i)}));
    store.close();
    const QString data = folder.filePath(u"TavoliPersonalData"_s);
    QDir().mkpath(data);
    QFile::copy(store.path(), database());
    qputenv("XDG_STATE_HOME", folder.filePath(u"state"_s).toLocal8Bit());
  }

  QString database() const { return folder.filePath(u"TavoliPersonalData/TavoDB000.mdb"_s); }

  /// What the program prints, its complaints last.
  QString run(const QStringList& arguments, const char* input, int status = 0) const {
    QProcess program;
    program.start(QStringLiteral(TAVOLI_PROGRAM),
                  QStringList{u"--terminal"_s, u"--app-folder"_s, folder.path()} + arguments);
    program.write(input);
    program.closeWriteChannel();
    EXPECT_TRUE(program.waitForFinished());
    QString output =
        QString::fromUtf8(program.readAllStandardOutput() + program.readAllStandardError());
    EXPECT_EQ(program.exitCode(), status) << qPrintable(output);
    return output;
  }

  /// The arguments that set conditions, `NAME=VALUE` each with a blank between.
  static QStringList settings(const QString& values) {
    QStringList arguments = {u"--user"_s, u"000"_s};
    for (const QString& value : values.split(u' ')) arguments += {u"--set"_s, value};
    return arguments;
  }

  static void expectInOrder(const QString& output, const std::vector<const char16_t*>& expected) {
    qsizetype from = 0;
    for (const char16_t* text : expected) {
      const QString line = QString::fromUtf16(text);
      from = output.indexOf(line, from);
      ASSERT_GE(from, 0) << qPrintable(line) << " is missing in\n" << qPrintable(output);
      from += line.size();
    }
  }

  /// The fields 記憶 and 回数 of a sentence.
  QString stored(const QString& 文番) const {
    std::optional<Database> opened = openDatabase(database()).database;
    const auto rows = opened->OpenRecordset(tableBDIC);
    rows->Seek(SeekOp::Equal, 文番);
    return rows->text(field記憶) + rows->text(field回数);
  }

  QTemporaryDir folder;
  test::TestStore store;
  const QStringList sentences = settings(u"COURSE=0 selMethod=4 startMode=1"_s);
};

TEST_F(TerminalDrillTest, FiveRightAndTwoWrongAnswersAreFoundAgain) {
  QString output = run(sentences,
                       ":yes\nanswer 1\n\nwrong\nanswer 2\n\nanswer 3\n\nanswer 4\n\n"
                       "wrong again\nANSWER 5\n\n:F6\n:no\n:F6\n:yes\n");
  expectInOrder(output, {u"[箱] パスワードは「」です。（:yes / :no）", u"[問題] 問題{1}",
                         u"[表示] ○　正解です。　『うろ覚え』にしました。",
                         u"    answer 1\n[確認] 空の行で次に進みます。",
                         u"[正解] {wrong again} は正解ではありません。",
                         u"[状態2] 位置=6／6 000060", u"[箱] 終了しますか？（:yes / :no）"});
  for (const int i : {1, 3, 4}) EXPECT_EQ(stored(digits(i * 10, 6)), u"101"_s);
  for (const int i : {2, 5})
    EXPECT_EQ(stored(digits(i * 10, 6)), u"001"_s) << "not at the first try";
  EXPECT_EQ(stored(u"000060"_s), u"000"_s);

  output = run(sentences, "");  // the end of the input is a confirmed end
  expectInOrder(output, {u"[状態7] 練習回数 = 1"});
  EXPECT_FALSE(output.contains(u"[箱]"_s));
}

TEST_F(TerminalDrillTest, KnowsTheKeysOfThePractice) {
  const QString output = run(sentences,
                             ":yes\n:F3\n:F4\n:F2\n:F1\nanswer 2\n:menu3\n:look apple\n"
                             ":conditions\n:menu42\n:F11\n:F12\n\nAnswer 4\n:F7\n:yes\n");
  expectInOrder(output,
                {u"[状態2] 位置=1／6 000010", u"[状態2] 位置=2／6 000020",
                 u"[状態2] 位置=1／6 000010", u"[状態2] 位置=2／6 000020", u"[正解] 正解：answer 2",
                 u"[経過] -------------- 0001 -------------", u"[中学DB] apple：Not found.",
                 u"[条件] コース：中学", u"[前回] コース：中学", u"[状態3] 比較方法 ABCDE≠abcde",
                 u":F12 というキーはありません。", u"[箱] このレッスンファイルを終了して"});
  EXPECT_EQ(stored(u"000010"_s), u"000"_s) << "left by F2";
  EXPECT_EQ(stored(u"000020"_s), u"001"_s) << "the answer was shown";
}

TEST_F(TerminalDrillTest, ReviewsAndGoesOn) {
  const QString output = run(settings(u"COURSE=0 selMethod=4 startMode=1 reviewCycle=1"_s),
                             ":yes\nanswer 1\n\nanswer 2\n\n"
                             ":F1\nanswer 1\n\n"
                             "answer 3\n\nno\n:F2\nnever\n\n"
                             "answer 4\n\n:F6\n:no\n:F11\nanswer 5\n\n:F6\n:yes\n");
  expectInOrder(
      output, {u"[復習] 中学\n[問題] 問題{1}", u"[表示] answer 1", u"[確認] 空の行で次に進みます。",
               u"[問題] 問題{3}", u"[復習] 中学\n[問題] 問題{2}", u"[正解] {no} は正解",
               u":F2 というキーはありません。", u"answer 2　が正解です。", u"[問題] 問題{4}",
               u"[問題] 問題{3}", u"[箱] 終了しますか？", u"[問題] 問題{5}", u"[問題] 問題{4}",
               u"[箱] 終了しますか？"});
  EXPECT_EQ(stored(u"000020"_s), u"101"_s) << "a review changes nothing";
  EXPECT_EQ(stored(u"000050"_s), u"101"_s);
}

TEST_F(TerminalDrillTest, WritesRequestedQuestionsIntoAFileAndTellsItsPath) {
  const QString output = run(sentences,
                             ":yes\n:F9\n\nanswer 1\n:F9\n\n\n"
                             ":F9\n\n:F6\n:yes\n");
  expectInOrder(output, {u"[箱] 終了時に、この問題と正解、コメントを印刷します。",
                         u"[箱] 既に印刷が要求されています。",
                         u"[箱] 終了時に、この問題と正解、コメントを印刷します。",
                         u"[箱] プリンターで印刷できないので、"});
  const QDir data(folder.filePath(u"TavoliPersonalData"_s));
  const QStringList files = data.entryList({u"TavoPrint000-*.pdf"_s});
  ASSERT_EQ(files.size(), 1);
  EXPECT_TRUE(output.contains(data.filePath(files.first())));
  const QString text = test::textOfPdf(data.filePath(files.first())).remove(u' ');
  EXPECT_EQ(text.count(u"answer1"_s), 1) << qPrintable(text);
  EXPECT_EQ(text.count(u"answer2"_s), 1);
  EXPECT_EQ(text.count(u"answer3"_s), 0);
}

TEST_F(TerminalDrillTest, WhoHasOldContentIsOfferedTheNewOnce) {
  {
    const QString original = u"/../app-originals/TavoDB000.mdb"_s;
    std::optional<Database> delivered =
        peekDatabase(QFileInfo(QStringLiteral(TAVOLI_PROGRAM)).path() + original);
    ASSERT_TRUE(delivered);
    const auto question = delivered->OpenRecordset(tableBDIC);
    std::optional<Database> learner = openDatabase(database()).database;
    const auto rows = learner->OpenRecordset(tableBDIC);
    rows->Seek(SeekOp::Equal, u"000010"_s);
    question->Seek(SeekOp::Equal, rows->key());
    rows->Edit();
    rows->setValue(field問正コ, question->text(field問正コ));
    ASSERT_TRUE(rows->Update());
  }
  QString output = run(sentences, ":yes\n:yes\n");
  expectInOrder(output,
                {u"[箱] 新しい教材があります。取り込みますか。（:yes / :no）\n[箱]\n[進捗]"});
  EXPECT_FALSE(output.contains(u"全然\n    単熟・中学DB：0 / 0 / 0\n"_s)) << "counted behind it";
  EXPECT_FALSE(run(sentences, "").contains(u"[箱]"_s));
}

TEST_F(TerminalDrillTest, TwoEmptyLinesAreTheStandardUser) {
  expectInOrder(run(sentences.sliced(2), "\n\n\n:yes\n"), {u"[問題] 問題{1}"});
}

TEST_F(TerminalDrillTest, TheStartIsCheckedAsOnTheScreen) {
  const QString start = u"COURSE=0 selMethod=4 startMode=3 startEnglish="_s;
  QString output = run(settings(start + u"000099"_s), ":yes\n:no\n", 1);
  expectInOrder(output, {u"[箱] 指定開始英語の 000099 はデータベース中にありません。"});
  EXPECT_FALSE(output.contains(u"[問題]"_s));
  output = run(settings(start + u"000040･問"_s), "");
  expectInOrder(output, {u"[問題] 問題{4}"});
}

TEST_F(TerminalDrillTest, ASpecialistDictionaryIsAskedFor) {
  const QString output =
      run(settings(u"COURSE=2 specialTable=Gone"_s), ":yes\nNone\nBusinessTOEIC\n", 1);
  expectInOrder(output, {u"専門ＤＢを選択して下さい。", u"[箱] None はありません。",
                         u"コース：専門 BusinessTOEIC"});
}

TEST_F(TerminalDrillTest, WhatItMakesIsTheLearnersAloneAndStaysWhereItIs) {
  const QString before = QDir::currentPath();
  QDir::setCurrent(folder.path());
  qputenv("TAVOLI_PASSWORD", "secret");
  const QStringList here = {u"--app-folder"_s, u"deep/er/.."_s};
  const QString output = run(QStringList{u"--user"_s, u"000"_s} + here, ":yes\n");
  qunsetenv("TAVOLI_PASSWORD");
  QDir::setCurrent(before);
  expectInOrder(output, {u"[箱] パスワードは「secret」です。"});
  const QString app = folder.filePath(u"deep"_s);
  QFile placement(app + u"/TavoAlloc.txt"_s);
  ASSERT_TRUE(placement.open(QIODevice::ReadOnly));
  EXPECT_EQ(placement.readAll(), (app + u"/TavoliPersonalData\n"_s).toUtf8());
  constexpr auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                          QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
  for (const char16_t* made :
       {u"", u"/TavoAlloc.txt", u"/TavoliPersonalData", u"/TavoliPersonalData/TavoHistory000"})
    EXPECT_FALSE(QFile::permissions(app + QString::fromUtf16(made)) & others)
        << qPrintable(QString::fromUtf16(made));
}

TEST_F(TerminalDrillTest, ABrokenDatabaseLeavesItsReasonInTheLogAlone) {
  QFile broken(database());
  ASSERT_TRUE(broken.open(QIODevice::ReadWrite));
  broken.write(QByteArray(100, 'x'));
  broken.close();
  EXPECT_FALSE(run({u"--user"_s, u"000"_s}, ":yes\n", 1).contains(u"tavoli.store"_s));
  QFile log(folder.filePath(u"state/tavoli/tavoli.log"_s));
  ASSERT_TRUE(log.open(QIODevice::ReadOnly));
  EXPECT_TRUE(
      log.readAll().endsWith(" tavoli.store " + database().toUtf8() + " file is not a database\n"));
}

TEST_F(TerminalDrillTest, WithoutADisplayTheWindowsSayWhatToDo) {
  QProcessEnvironment bare = QProcessEnvironment::systemEnvironment();
  for (const char16_t* name : {u"DISPLAY", u"WAYLAND_DISPLAY", u"QT_QPA_PLATFORM"})
    bare.remove(QString::fromUtf16(name));
  QProcess program;
  program.setProcessEnvironment(bare);
  program.start(QStringLiteral(TAVOLI_PROGRAM), QStringList());
  ASSERT_TRUE(program.waitForFinished());
  EXPECT_EQ(program.exitCode(), 2);
  const QString errors = QString::fromUtf8(program.readAllStandardError());
  EXPECT_TRUE(errors.contains(u"tavoli --terminal"_s)) << qPrintable(errors);
}

TEST_F(TerminalDrillTest, BadArgumentsAreTold) {
  const struct {
    const char* name;
    QStringList arguments;
    QString complaint;
  } cases[] = {
      {"unknown option", {u"--help-all"_s}, u"--help-all: この"_s},
      {"no value", settings(u"selMethod"_s), u"NAME=VALUE"_s},
      {"unknown name", settings(u"COURSE=0 speed=9"_s), u"speed という条件はありません"_s},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const QString output = run(c.arguments, ":yes\n", 2);
    EXPECT_TRUE(output.contains(c.complaint)) << qPrintable(output);
  }
}

}  // namespace
}  // namespace tavoli
