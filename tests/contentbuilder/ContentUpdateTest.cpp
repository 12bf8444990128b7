#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "contentbuilder/ContentNotes.h"
#include "contentbuilder/ContentTool.h"
#include "contentbuilder/ContentUpdate.h"
#include "progress/ProgressRecord.h"
#include "system/FileLock.h"
#include "tests/support/Fakes.h"
#include "tests/support/Print.h"
#include "tests/support/TestStore.h"

namespace tavoli {
namespace {

using test::TestStore;

class ContentUpdateTest : public testing::Test {
 protected:
  QString path(const QString& name) const { return folder.filePath(name); }

  void put(const QString& file, const QByteArray& bytes) {
    ASSERT_EQ(files.write(file, bytes), FileResult::Ok);
  }
  void write(const QString& name, const QByteArray& bytes) {
    EXPECT_EQ(files.makeFolder(QFileInfo(path(name)).path()), FileResult::Ok);
    put(path(name), bytes);
  }

  /// New content number 2 of some words and one sentence.
  void build(const QByteArray& number = "2\n") {
    const QByteArray header = "英語\tレベル\t発音\t同\t日\tコメント\t読上\n";
    write(QStringLiteral("new/number.txt"), number);
    write(QStringLiteral("new/renames.tsv"),
          "look for ～\tlook for\nseek～\tlook for ～\n000010\t000020\n");
    write(QStringLiteral("new/words/JTDIC/a.tsv"),
          header + "look for\t3\t\tseek\t～を捜す|～を求める\t\tlook\nMay\t1\t\t\t５月\t\n");
    write(QStringLiteral("new/words/STDIC/a.tsv"), header + "kept\t4\t\t\t保った\t\n");
    write(QStringLiteral("new/words/Travel/a.tsv"), header + "visa\t4\t\t\t査証\t\n");
    write(QStringLiteral("new/sentences/中学/a.txt"),
          "000020\n問 次。％A (   ) (   ) (   ).\n答 line\n答 line\n答 {is/was}\n");
    const Problems problems =
        ContentTool(files).build(path(QStringLiteral("new")), content(), true);
    ASSERT_TRUE(problems.empty()) << qPrintable(problems[0].message);
  }

  /// A sound item in front of a damaged one.
  void replaceContent(const ContentNotes& notes) {
    TestStore other;
    other.addWord(tableJTDIC, QStringLiteral("a"), QStringLiteral("||000一^|"));
    other.addWord(tableJTDIC, QStringLiteral("b"), QStringLiteral("||0"));
    EXPECT_TRUE(storeNotes(notes, other.database()));
    other.close();
    EXPECT_EQ(files.copy(other.path(), content()), FileResult::Ok);
  }

  QString content() const { return path(QStringLiteral("new.mdb")); }
  QString learner() const { return store.path(); }
  QStringList besideTheLearner() const {
    return QDir(store.folder()).entryList(QDir::Files, QDir::Name);
  }
  ContentUpdate update(const QString& lessons = QString()) {
    store.close();
    return updateContent(files, clock, content(), learner(), lessons);
  }

  SystemFiles files;
  test::FakeClock clock;
  QTemporaryDir folder;
  TestStore store;
};

TEST_F(ContentUpdateTest, WhatWasLearntFollowsTheText) {
  build();
  const QString record = QStringLiteral("||107～を捜す^905～を求める^|古い");
  store.addWord(tableJTDIC, QStringLiteral("seek～"), record, MemoryState::うろ覚え, 1);
  store.addWord(tableJTDIC, QStringLiteral("may"), QStringLiteral("||211～かもしれない^|"),
                MemoryState::完全);
  store.addWord(tableSTDIC, QStringLiteral("gone"), QStringLiteral("||205去った^|"),
                MemoryState::完全);
  store.addWord(tableSTDIC, QStringLiteral("kept"), QStringLiteral("||205保った^|"),
                MemoryState::完全, 4);
  store.addSentence(
      QStringLiteral("000010"),
      QStringLiteral("前。|002004line00000000^001004line00000000^002003was00000000^|"),
      MemoryState::うろ覚え);
  store.addSentence(rowCourse, QStringLiteral("Travel"));
  ProgressCounters counters;
  counters.記憶単熟 = {{{9, 9, 9}, {9, 9, 9}, {9, 9, 9}}};
  counters.回数 = {{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}};
  const QString before =
      buildProgressRecord(QStringLiteral("taro"), counters, {clock.now(), clock.now(), {}, 0});
  store.addSentence(rowProgress, before);
  const QString oldSource = QStringLiteral("words/JTDIC/0.tsv");
  EXPECT_TRUE(storeNotes({{oldSource, QStringLiteral("May")}}, store.database()));
  store.close();
  const QByteArray old = *files.read(learner());

  const ContentUpdate done = update();
  ASSERT_TRUE(done.problems.empty()) << qPrintable(done.problems[0].message);
  EXPECT_EQ(done.added, 2) << "May, visa";
  EXPECT_EQ(done.changed, 2);
  EXPECT_EQ(done.renamed, 2);
  EXPECT_EQ(files.read(done.backup), old);

  store.open();
  const auto stored = [&](const QString& table, const char* key, const QString& field) {
    return store.stored(table, QString::fromUtf8(key), field).value_or(QStringLiteral("none"));
  };
  EXPECT_EQ(stored(tableJTDIC, "look for", field発同日コ),
            QStringLiteral("|seek^|107～を捜す^000～を求める^|"));
  EXPECT_EQ(stored(tableJTDIC, "look for", field記憶), QStringLiteral("1"));
  EXPECT_EQ(stored(tableJTDIC, "look for", fieldレベル), QStringLiteral("03"));
  EXPECT_EQ(stored(tableJTDIC, "look for", field読上), QStringLiteral("look"));
  EXPECT_EQ(stored(tableJTDIC, "seek～", field発同日コ), QStringLiteral("none"));
  EXPECT_EQ(stored(tableJTDIC, "may", field記憶), QStringLiteral("2")) << "not May";
  EXPECT_EQ(stored(tableSTDIC, "gone", field記憶), QStringLiteral("2"));
  EXPECT_EQ(stored(QStringLiteral("Travel"), "visa", field発同日コ), QStringLiteral("||000査証^|"));
  EXPECT_EQ(stored(tableBDIC, "000020", field問正コ).section(u'|', 1, 1),
            QStringLiteral("002004line00000000^001004line00000000^000002is00000001010203was^"));
  EXPECT_EQ(stored(tableBDIC, "000020", field記憶), QStringLiteral("0"));

  const QString progress = stored(tableBDIC, "zzzzz2", field問正コ);
  const ProgressCounters now = parseProgressRecord(progress).counters;
  EXPECT_EQ(now.記憶単熟, (ByLevel{{{1, 1, 1}, {2, 0, 0}, {0, 0, 1}}}));
  EXPECT_EQ(now.記憶文, (ByLevel{{{0, 0, 1}, {0, 0, 0}, {0, 0, 0}}}));
  EXPECT_EQ(now.回数, counters.回数);
  EXPECT_EQ(progress.left(9) + progress.mid(315), before.left(9) + before.mid(315));

  const ContentNotes notes = notesIn(store.database());
  EXPECT_EQ(contentNumber(notes), 2);
  EXPECT_FALSE(notes.contains(oldSource));

  EXPECT_FALSE(update().problems.empty()) << "the number only rises";
}

TEST_F(ContentUpdateTest, RefusesAndLeavesEverything) {
  store.addWord(tableJTDIC, QStringLiteral("may"), QStringLiteral("||211一^|"), MemoryState::完全);
  const struct {
    const char* name;
    std::function<void()> make;
  } cases[] = {
      {"a run that is not stored yet",
       [&] { put(store.folder() + QStringLiteral("/TavoDB000.run.1"), "x"); }},
      {"a change half made", [&] { put(learner() + QStringLiteral("-journal"), "x"); }},
      {"content without a number", [&] { replaceContent({}); }},
      {"no content", [&] { QFile::remove(content()); }},
      {"no database", [&] { put(content(), "no database"); }},
      {"a damaged item",
       [&] {
         replaceContent({{QStringLiteral("number.txt"), QStringLiteral("9")}});
       }},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    build();
    store.close();
    const QByteArray before = *files.read(learner());
    c.make();
    const QStringList beside = besideTheLearner();
    EXPECT_EQ(update().problems.size(), 1);
    EXPECT_EQ(files.read(learner()), before);
    EXPECT_EQ(besideTheLearner(), beside);
    for (const QString& name : beside)
      if (name != QStringLiteral("TavoDB000.mdb")) QFile::remove(store.folder() + u'/' + name);
  }
  build();
  FileLock held;
  EXPECT_EQ(held.take(learner()), FileLock::Result::Taken);
  EXPECT_EQ(update().problems.size(), 1) << "in use";
  EXPECT_TRUE(
      updateContent(files, clock, content(), learner(), QString(), KeptBy::Caller).problems.empty())
      << "by the caller";
}

TEST_F(ContentUpdateTest, LessonsFollow) {
  const struct {
    const char* name;
    QByteArray delivered, now, found, expected;
  } cases[] = {
      {"unchanged", "*題\nMay\n", "May\nlook for\n", "*題\r\nMay\r\n", "May\nlook for\n"},
      {"changed", "May\n", "look for\n", "*\x91\xE8\r\nMay\r\nlook for \x81\x60\r\n",
       "*\x91\xE8\r\nMay\r\nlook for\r\n"},
      {"own", "", "", "!seek～\n000010･前。\nseek～ \nMay", "!seek～\n000020･前。\nlook for\nMay"},
      {"withdrawn", "May\n", "", "May\n", "May\n"},
      {"thrown away", "May\n", "look for\n", "", ""},
      {"added", "", "May\n", "", "May\n"},
  };
  const QString lessons = QStringLiteral("lessons/%1.tav");
  const auto deliver = [&](const QByteArray& number, auto member) {
    QDir(path(QStringLiteral("new/lessons"))).removeRecursively();
    for (const auto& c : cases)
      if (!(c.*member).isEmpty())
        write(QStringLiteral("new/") + lessons.arg(QLatin1String(c.name)), c.*member);
    build(number);
  };
  using Case = std::remove_cvref_t<decltype(cases[0])>;
  deliver("1\n", &Case::delivered);
  ASSERT_TRUE(update().problems.empty());
  for (const auto& c : cases)
    if (!c.found.isEmpty()) write(lessons.arg(QLatin1String(c.name)), c.found);
  deliver("2\n", &Case::now);
  ASSERT_TRUE(update(path(QStringLiteral("lessons"))).problems.empty());
  for (const auto& c : cases)
    EXPECT_EQ(files.read(path(lessons.arg(QLatin1String(c.name)))).value_or(""), c.expected)
        << c.name;
}

}  // namespace
}  // namespace tavoli
