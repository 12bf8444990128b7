// SPDX-License-Identifier: GPL-3.0-or-later

#include "system/LogFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>

#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "system/Clock.h"
#include "system/FileReplacement.h"

namespace tavoli {

namespace {

constexpr char ownCategories[] = "tavoli.";
constexpr off_t mostBytes = 1 << 18;  // 256 KiB

// A message handler is a bare function: what it needs cannot be handed to it.
QtMessageHandler s_otherMessages = nullptr;
QByteArray s_path;
QMutex s_writing;

int openLog() {
  return open(s_path.constData(), O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_CLOEXEC,
              S_IRUSR | S_IWUSR);
}

void addLine(const QByteArray& line) {
  const QMutexLocker lock(&s_writing);
  int log = openLog();
  if (log < 0) {
    const QFileInfo folder(QFileInfo(QFile::decodeName(s_path)).path());
    QDir().mkpath(folder.path());
    mkdir(QFile::encodeName(folder.filePath()).constData(), S_IRWXU);
    log = openLog();
  }
  struct stat about {};
  if (log >= 0 && fstat(log, &about) == 0 && about.st_size + line.size() > mostBytes) {
    close(log);
    std::rename(s_path.constData(), (s_path + ".1").constData());
    log = openLog();
  }
  if (log < 0) return;
  // Half a line is better than none.
  static_cast<void>(writeAll(log, line));
  close(log);
}

void handle(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (!context.category ||
      std::strncmp(context.category, ownCategories, std::strlen(ownCategories)) != 0) {
    s_otherMessages(type, context, text);
    return;
  }
  const QString time = SystemClock().now().toString(Qt::ISODate);
  addLine((time + u' ' + QString::fromUtf8(context.category) + u' ' + text.simplified() + u'\n')
              .toUtf8());
}

}  // namespace

void writeLogTo(const QString& path) {
  s_path = QFile::encodeName(path);
  const QtMessageHandler before = qInstallMessageHandler(handle);
  if (before != handle) s_otherMessages = before;
}

QString logFilePath() {
  QString states = qEnvironmentVariable("XDG_STATE_HOME");
  if (!QDir::isAbsolutePath(states)) states = QDir::homePath() + QStringLiteral("/.local/state");
  return states + QStringLiteral("/tavoli/tavoli.log");
}

}  // namespace tavoli
