#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "progress/ProgressRecord.h"
#include "progress/TableSurvey.h"
#include "tests/support/Print.h"
#include "tests/support/TestStore.h"

// A program that is killed while it stores a run leaves the old files or the new ones.
namespace tavoli {
namespace {

constexpr int sentenceCount = 12;

/// What of a database tells whether a run is in it.
struct Snapshot {
  QStringList items;  ///< 記憶 and 回数 of each sentence
  ProgressCounters counters;
  QString course;

  bool operator==(const Snapshot& other) const {
    return items == other.items && counters.回数 == other.counters.回数 &&
           counters.回数文 == other.counters.回数文 && counters.記憶文 == other.counters.記憶文 &&
           course == other.course;
  }
};

class KilledRunTest : public testing::Test {
 protected:
  /// A new learner's folders, the data placed elsewhere, and one finished run.
  void begin() {
    QDir(base()).removeRecursively();
    for (const QString& name : {QStringLiteral("TavoliPersonalData"), QStringLiteral("placed")})
      QDir().mkpath(base() + u'/' + name);
    QFile alloc(base() + QStringLiteral("/TavoAlloc.txt"));
    ASSERT_TRUE(alloc.open(QIODevice::WriteOnly));
    alloc.write((base() + QStringLiteral("/placed\n")).toUtf8());
    alloc.close();
    QFile::copy(fresh.path(), work());
    QFile::copy(fresh.path(), placed());
    ASSERT_EQ(run(QStringLiteral(":yes\nanswer 1\n\n")), 0);
  }

  QString base() const { return folder.filePath(QStringLiteral("app")); }
  QString placed() const { return base() + QStringLiteral("/placed/TavoDB000.mdb"); }
  QString work() const { return base() + QStringLiteral("/TavoliPersonalData/TavoDB000.mdb"); }

  /// Runs the drill in the terminal and returns its exit status; -1 when it was killed.
  int run(const QString& input, int killAt = 0) const {
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_STATE_HOME"), base());
    if (killAt > 0) {
      environment.insert(QStringLiteral("TAVOLI_KILL_AT"), QString::number(killAt));
      environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(TAVOLI_KILL_AT));
      // A sanitizer wants to be the first library, or to be told that it is not.
      environment.insert(QStringLiteral("ASAN_OPTIONS"),
                         QStringLiteral("verify_asan_link_order=0"));
    }
    program.setProcessEnvironment(environment);
    program.start(
        QStringLiteral(TAVOLI_PROGRAM),
        {QStringLiteral("--terminal"), QStringLiteral("--app-folder"), base(),
         QStringLiteral("--user"), QStringLiteral("000"), QStringLiteral("--set"),
         QStringLiteral("COURSE=0"), QStringLiteral("--set"), QStringLiteral("selMethod=4"),
         QStringLiteral("--set"), QStringLiteral("memorySelect=5"), QStringLiteral("--set"),
         QStringLiteral("startMode=1")});
    program.write(input.toUtf8());
    program.closeWriteChannel();
    EXPECT_TRUE(program.waitForFinished());
    return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
  }

  /// Opening a file takes half-written changes back first.
  static Snapshot snapshot(const QString& path) {
    Snapshot shot;
    auto [database, errorNumber] = openDatabase(path);
    EXPECT_EQ(errorNumber, 0) << qPrintable(path);
    if (!database) return shot;
    EXPECT_TRUE(database->isSound());
    const auto rows = database->OpenRecordset(tableBDIC);
    for (; rows->hasRow() && !isReservedKey(rows->key()); rows->MoveNext())
      shot.items.append(rows->text(field記憶) + rows->text(field回数));
    rows->Seek(SeekOp::Equal, rowProgress);
    shot.counters = parseProgressRecord(rows->text(field問正コ)).counters;
    rows->Seek(SeekOp::Equal, rowCourse);
    shot.course = rows->text(field記憶);
    ByLevel survey{};
    EXPECT_TRUE(surveySentences(*database, survey));
    EXPECT_EQ(shot.counters.記憶文, survey) << "the counts agree with the rows";
    return shot;
  }

  static int wholeLines(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return 0;
    const QByteArray text = file.readAll();
    EXPECT_TRUE(text.isEmpty() || text.endsWith('\n')) << qPrintable(path);
    return static_cast<int>(text.count('\n'));
  }

  QTemporaryDir folder;
  test::TestStore fresh;
};

TEST_F(KilledRunTest, LeavesTheOldFilesOrTheNew) {
  for (int i = 1; i <= sentenceCount; ++i)
    fresh.addSentence(digits(i * 10, 6),
                      test::sentenceRecord(QStringLiteral("問題{%1}").arg(i),
                                           {QStringLiteral("answer %1").arg(i)}));
  fresh.close();
  QString input;
  for (int i = 1; i <= sentenceCount; ++i) input += QStringLiteral("answer %1\n\n").arg(i);
  input += QStringLiteral("n\ny\n");

  begin();
  const Snapshot before = snapshot(placed());
  ASSERT_EQ(run(input), 0);
  const Snapshot after = snapshot(placed());
  ASSERT_FALSE(before == after);

  int killed = 0;
  int oldWork = 0;
  for (int call = 1;; ++call) {
    SCOPED_TRACE(call);
    begin();
    if (run(input, call) == 0) break;
    ++killed;
    const Snapshot atHome = snapshot(placed());
    EXPECT_TRUE(atHome == before || atHome == after);
    if (QFile::exists(work())) {
      const Snapshot here = snapshot(work());
      EXPECT_TRUE(here == before || here == after);
      oldWork += here == before ? 1 : 0;
    }
    for (const QString& name :
         {QStringLiteral("/TavoHistory000"), QStringLiteral("/TavoCond000")}) {
      EXPECT_GE(wholeLines(base() + QStringLiteral("/placed") + name), 1)
          << "the earlier run stays";
      wholeLines(base() + QStringLiteral("/TavoliPersonalData") + name);
    }
    // The learner goes on as if nothing had happened.
    const QString boxes = QStringLiteral("\n\n");
    if (call % 8 == 0) EXPECT_EQ(run(boxes + input), 0);
    if (testing::Test::HasFailure()) break;
  }
  EXPECT_GT(killed, oldWork) << "some deaths came after the tables were stored";
  EXPECT_GT(oldWork, 0);
  EXPECT_TRUE(snapshot(placed()) == after);
}

}  // namespace
}  // namespace tavoli
