#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "system/Files.h"
#include "system/LogFile.h"
#include "tests/support/Print.h"

namespace tavoli {
namespace {

Q_LOGGING_CATEGORY(ownLog, "tavoli.test")

QStringList s_others;

mode_t modeOf(const QString& path) {
  struct stat found {};
  EXPECT_EQ(stat(qPrintable(path), &found), 0) << qPrintable(path);
  return found.st_mode & 0777;
}

TEST(LogFileTest, KeepsALineForEachOwnMessageAndAnOlderFile) {
  const QTemporaryDir folder;
  const SystemFiles files;
  const QString path = folder.filePath(QStringLiteral("states/tavoli/tavoli.log"));
  const auto usual = qInstallMessageHandler(
      [](QtMsgType, const QMessageLogContext&, const QString& text) { s_others.append(text); });
  writeLogTo(path);
  qCWarning(ownLog) << "of two\nlines";
  qWarning() << "not ours";
  const auto line = QString::fromUtf8(files.read(path).value_or(QByteArray()));
  static const QRegularExpression form(
      QStringLiteral("^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d tavoli.test of two lines\n$"));
  EXPECT_TRUE(form.match(line).hasMatch()) << qPrintable(line);
  EXPECT_EQ(s_others, QStringList{QStringLiteral("not ours")});
  EXPECT_EQ(modeOf(path), 0600U);
  EXPECT_EQ(modeOf(QFileInfo(path).path()), 0700U);

  const QString older = path + QStringLiteral(".1");
  for (const char text : {'a', 'b', 'c'}) qCWarning(ownLog) << QByteArray(150'000, text);
  EXPECT_TRUE(files.read(older).value_or(QByteArray()).contains("bb"));
  EXPECT_EQ(files.read(path).value_or(QByteArray()).count('\n'), 1) << "the last message alone";
  EXPECT_EQ(modeOf(older), 0600U);

  writeLogTo(path + QStringLiteral("/no folder"));
  qCWarning(ownLog) << "nowhere to go";
  qInstallMessageHandler(usual);
  EXPECT_EQ(s_others.size(), 1) << "a failure of the log's own is dropped";
}

}  // namespace
}  // namespace tavoli
