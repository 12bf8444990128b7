// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QTranslator>

#include <cstdio>
#include <sys/stat.h>

#include "app/CommandLine.h"
#include "app/TerminalDrill.h"
#include "app/screens/WindowFlow.h"
#include "home/Placement.h"
#include "system/LogFile.h"
#include "system/screens/PagedPaper.h"

using namespace Qt::StringLiterals;

using namespace tavoli;

namespace {

constexpr int badArguments = 2;

/// The arguments in UTF-8, before any application object exists.
QStringList argumentsOf(int argc, char** argv) {
  QStringList arguments;
  for (int i = 0; i < argc; ++i) arguments.append(QString::fromLocal8Bit(argv[i]));
  return arguments;
}

/// Whether there is something to show windows on.
bool hasDisplay() {
  return !qEnvironmentVariableIsEmpty("DISPLAY") ||
         !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
         !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

int start(const CommandLine& line) {
  SystemFiles files;
  const SystemClock clock;
  const QString programFolder = QCoreApplication::applicationDirPath();
  // Whatever becomes the current folder later: the learners' files stay where they are.
  const QString folder = line.applicationFolder.isEmpty()
                             ? applicationFolderFor(programFolder)
                             : QDir::cleanPath(QDir().absoluteFilePath(line.applicationFolder));
  const bool filled = fillApplicationFolder(files, programFolder, folder);
  if (!filled) {
    std::fprintf(stderr, "tavoli: %s にデータを用意できません。書き込めるか確かめてください。\n",
                 qPrintable(folder));
  }
  Module1 module = startModule1(files, clock, folder);
  module.deliveredContent = deliveredContent(programFolder);
  if (line.terminal) {
    PagedPaper paper;
    return TerminalDrill(module, line.terminalOptions, paper).run();
  }
  return WindowFlow(module, QStringLiteral(TAVOLI_VERSION)).run();
}

}  // namespace

int main(int argc, char** argv) {
  umask(S_IRWXG | S_IRWXO);  // what the program makes is the learner's alone
  writeLogTo(logFilePath());
  const CommandLine line =
      parseCommandLine(argumentsOf(argc, argv), QStringLiteral(TAVOLI_VERSION));
  if (!line.complaint.isEmpty()) {
    std::fprintf(stderr, "tavoli: %s\n", qPrintable(line.complaint));
    return badArguments;
  }
  if (!line.information.isEmpty()) {
    std::fputs(qPrintable(line.information), stdout);
    return EXIT_SUCCESS;
  }
  if (!line.terminal && !hasDisplay()) {
    std::fputs("tavoli: 画面がありません。端末では tavoli --terminal で練習できます。\n", stderr);
    return badArguments;
  }
  QCoreApplication::setApplicationName(u"tavoli"_s);
  QCoreApplication::setApplicationVersion(QStringLiteral(TAVOLI_VERSION));
  if (line.terminal) {
    // Printing needs fonts, and fonts need an application with a screen, if only an imagined one.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return start(line);
  }
  const QApplication application(argc, argv);
  // Qt's own texts: the buttons of boxes and the folder dialog.
  QTranslator japanese;
  if (japanese.load(u"qtbase_ja"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(&japanese);
  return start(line);
}
