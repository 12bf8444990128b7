#include <QTemporaryDir>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "system/Files.h"
#include "tests/support/Print.h"

namespace tavoli {
namespace {

class FilesTest : public testing::Test {
 protected:
  static struct stat about(const QString& path) {
    struct stat found {};
    EXPECT_EQ(stat(qPrintable(path), &found), 0) << qPrintable(path);
    return found;
  }
  static mode_t modeOf(const QString& path) { return about(path).st_mode & 0777; }

  QTemporaryDir folder;
  SystemFiles files;
  QString a = folder.filePath(QStringLiteral("a"));
  QString b = folder.filePath(QStringLiteral("b"));
  QString link = folder.filePath(QStringLiteral("link"));
};

TEST_F(FilesTest, ReplacesAFileAsAWholeAndKeepsModeAndTime) {
  EXPECT_EQ(files.write(a, "first"), FileResult::Ok);
  EXPECT_EQ(modeOf(a), 0600U);
  chmod(qPrintable(a), 0440);
  ASSERT_EQ(files.copy(a, b), FileResult::Ok);
  EXPECT_EQ(modeOf(b), 0640U) << "the owner may write what is the owner's";
  EXPECT_EQ(files.modified(b), files.modified(a));
  ::link(qPrintable(b), qPrintable(link));
  chmod(qPrintable(a), 0600);
  for (const bool byCopy : {true, false}) {
    const ino_t before = about(b).st_ino;
    EXPECT_EQ(byCopy ? files.copy(a, b) : files.write(b, "second"), FileResult::Ok);
    EXPECT_NE(about(b).st_ino, before) << "written in place";
    EXPECT_EQ(modeOf(b), 0640U);
  }
  EXPECT_EQ(files.read(link), "first");
}

TEST_F(FilesTest, FollowsNoLink) {
  EXPECT_EQ(files.write(a, "somebody's"), FileResult::Ok);
  EXPECT_EQ(files.write(b, "mine"), FileResult::Ok);
  ASSERT_EQ(symlink(qPrintable(a), qPrintable(link)), 0);
  EXPECT_EQ(files.copy(b, link), FileResult::Link);
  EXPECT_EQ(files.copy(link, b), FileResult::Link);
  EXPECT_EQ(files.write(link, "x"), FileResult::Link);
  EXPECT_EQ(files.append(link, "x"), FileResult::Link);
  EXPECT_EQ(files.read(a), "somebody's");
  EXPECT_EQ(files.read(b), "mine");
}

TEST_F(FilesTest, AFullDiskLeavesNoHalfLineAndNoHalfFile) {
  EXPECT_EQ(files.append(a, "first line\n"), FileResult::Ok);
  EXPECT_EQ(files.write(b, "content"), FileResult::Ok);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{15, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  EXPECT_EQ(files.append(a, "second line\n"), FileResult::Failed);
  EXPECT_EQ(files.write(b, "much longer than that"), FileResult::Failed);
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(files.read(a), "first line\n");
  EXPECT_EQ(files.read(b), "content");
}

}  // namespace
}  // namespace tavoli
