#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "home/Placement.h"
#include "home/Relocation.h"
#include "system/Files.h"
#include "tests/support/Print.h"

namespace tavoli {
namespace {

using Result = Relocation::Result;

TEST(PlacementTest, IsWrittenWhereItIsMissing) {
  const QTemporaryDir folder;
  SystemFiles files;
  const QString path = folder.filePath(QStringLiteral("TavoAlloc.txt"));
  const QString standard = defaultDataFolder(folder.path());
  EXPECT_EQ(readPlacement(files, folder.path()), standard);
  EXPECT_EQ(files.read(path), standard.toUtf8() + '\n');
  ASSERT_EQ(files.write(path, "x\r\n"), FileResult::Ok);
  EXPECT_EQ(readPlacement(files, folder.path()), standard) << "one character is empty";
  EXPECT_EQ(files.read(path), standard.toUtf8() + '\n');
  ASSERT_EQ(files.write(path, "/a/人\r\nsecond"), FileResult::Ok);
  EXPECT_EQ(readPlacement(files, folder.path()), QStringLiteral("/a/人"));
}

TEST(AccessPassword, CountsInTwoFormsOnly) {
  for (const char16_t* typed : {u"8642097531B", u"8642097531b"})
    EXPECT_TRUE(isAccessPassword(QString::fromUtf16(typed)));
  for (const char16_t* typed : {u"８642097531B", u"8642097531B ", u""})
    EXPECT_FALSE(isAccessPassword(QString::fromUtf16(typed)));
}

class RelocationTest : public testing::Test {
 protected:
  RelocationTest() {
    QDir().mkpath(present + QStringLiteral("/古い"));
    write(present + QStringLiteral("/TavoDB000.mdb"), "database");
    write(present + QStringLiteral("/TavoCond000"), "conditions");
    write(present + QStringLiteral("/TavoDB000.mdb.lock"), "123");
    write(present + QStringLiteral("/TavoMachine.txt"), "this one\n");
    write(present + QStringLiteral("/古い/.hidden"), "deep");
    QDir().mkpath(parent);
  }

  void write(const QString& path, const QByteArray& content) {
    ASSERT_EQ(files.write(path, content), FileResult::Ok);
  }
  QString text(const QString& path) const {
    return QString::fromUtf8(files.read(path).value_or("(missing)"));
  }
  QString allocation() const { return text(application + QStringLiteral("/TavoAlloc.txt")); }
  QString history() const { return text(application + QStringLiteral("/TavoAllocHisto.txt")); }

  QTemporaryDir folder;
  SystemFiles files;
  QString application = folder.filePath(QStringLiteral("アプリ"));
  QString present = defaultDataFolder(application);
  QString parent = folder.filePath(QStringLiteral("共有"));
  QString target = parent + QStringLiteral("/TavoliPersonalData");
  Relocation relocation{files, application};
};

TEST_F(RelocationTest, CopiesAllAndCountsFromTheNextStart) {
  ASSERT_EQ(relocation.place(parent), Result::Placed);
  EXPECT_EQ(readPlacement(files, application), target);
  EXPECT_EQ(history(), target + u'\n');
  EXPECT_EQ(text(target + QStringLiteral("/TavoCond000")), QStringLiteral("conditions"));
  EXPECT_EQ(text(target + QStringLiteral("/古い/.hidden")), QStringLiteral("deep"));
  EXPECT_EQ(files.modified(target + QStringLiteral("/TavoDB000.mdb")),
            files.modified(present + QStringLiteral("/TavoDB000.mdb")));
  for (const char16_t* ours : {u"/TavoDB000.mdb.lock", u"/TavoMachine.txt"})
    EXPECT_FALSE(files.exists(target + QString::fromUtf16(ours)));
  EXPECT_TRUE(files.exists(present + QStringLiteral("/TavoDB000.mdb")));

  EXPECT_EQ(relocation.place(parent), Result::SameFolder);
  EXPECT_EQ(history(), target + u'\n');

  ASSERT_EQ(relocation.place(application + u'/'), Result::Placed);
  EXPECT_EQ(allocation(), present + u'\n');
  EXPECT_EQ(history(), target + u'\n' + present + u'\n');
}

TEST_F(RelocationTest, KnowsTheSameFolderByAnyPath) {
  const QString link = folder.filePath(QStringLiteral("link"));
  ASSERT_TRUE(QFile::link(application, link));
  EXPECT_EQ(relocation.place(application + QStringLiteral("/./")), Result::SameFolder);
  EXPECT_EQ(relocation.place(link), Result::SameFolder);
  EXPECT_EQ(relocation.place(present), Result::InsideSource);
  EXPECT_EQ(relocation.place(link + QStringLiteral("/TavoliPersonalData/new/deeper")),
            Result::InsideSource);
  EXPECT_FALSE(QDir(present + QStringLiteral("/new")).exists());
  EXPECT_EQ(history(), QStringLiteral("(missing)"));
  EXPECT_EQ(Relocation::target(QStringLiteral("/")), QStringLiteral("/TavoliPersonalData"));
}

TEST_F(RelocationTest, AFailedCopyLeavesThePlace) {
  write(target, "a file in the way");
  EXPECT_EQ(relocation.place(parent), Result::CopyFailed);
  EXPECT_EQ(allocation(), present + u'\n');
  EXPECT_EQ(history(), target + u'\n');

  ASSERT_TRUE(QDir(present).removeRecursively());
  EXPECT_EQ(relocation.place(folder.path()), Result::CopyFailed);
  EXPECT_EQ(allocation(), present + u'\n');
}

TEST_F(RelocationTest, KeepsWhatOnlyTheTargetHolds) {
  const QString database = target + QStringLiteral("/TavoDB000.mdb");
  const QString conditions = target + QStringLiteral("/TavoCond000");
  QDir().mkpath(target);
  write(present + QStringLiteral("/TavoCond000"), "a run\nanother run\n");
  write(database, "other results");
  write(database + QStringLiteral("-journal"), "of these");
  write(conditions, "a run\n");
  write(conditions + QStringLiteral("-journal"), "of the older one");
  const QString kept =
      database + files.modified(database).toString(QStringLiteral("-yyyyMMdd-HHmmss"));

  ASSERT_EQ(relocation.place(parent), Result::Placed);
  EXPECT_EQ(text(database), QStringLiteral("database"));
  EXPECT_EQ(text(kept), QStringLiteral("other results"));
  EXPECT_EQ(text(kept + QStringLiteral("-journal")), QStringLiteral("of these"));
  EXPECT_EQ(text(conditions), QStringLiteral("a run\nanother run\n"));
  EXPECT_EQ(QDir(target).entryList(QDir::Files | QDir::Hidden).size(), 4) << "no more is kept";
}

}  // namespace
}  // namespace tavoli
