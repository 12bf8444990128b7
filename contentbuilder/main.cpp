// SPDX-License-Identifier: GPL-3.0-or-later

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

#include <cstdio>

#include "contentbuilder/ContentTool.h"
#include "contentbuilder/ContentUpdate.h"
#include "system/Clock.h"
#include "system/LogFile.h"

namespace {

using namespace tavoli;

constexpr int exitWell = 0;
constexpr int exitProblems = 1;
constexpr int exitUsage = 2;

const QString optionHelp = QStringLiteral("help");
const QString optionTarget = QStringLiteral("o");
const QString optionForce = QStringLiteral("force");
const QString optionStrict = QStringLiteral("strict");
const QString optionCoverage = QStringLiteral("coverage");
const QString optionMissing = QStringLiteral("missing");
const QString optionInto = QStringLiteral("into");
const QString optionLessons = QStringLiteral("lessons");

void print(const QString& text, FILE* out = stderr) {
  QTextStream(out) << text << '\n';
}

void print(const Problem& problem, const QString& before, const QString& behind) {
  const QString line = problem.line > 0 ? QStringLiteral(":%1").arg(problem.line) : QString();
  print(problem.file + line + QStringLiteral(": ") + before + problem.message + behind);
}

void print(const Warnings& warnings) {
  for (const Warning& warning : warnings)
    print(warning.problem, QStringLiteral("警告: "), QStringLiteral(" [%1]").arg(warning.name()));
  if (warnings.empty()) return;
  print(QStringLiteral("警告が%1個あります。認めるものは、[ ] の中を accepted フォルダーの .txt に"
                       "一行ずつ書いてください。")
            .arg(warnings.size()));
}

void print(const Coverage& coverage, bool missing) {
  for (const Coverage::Share& share : coverage.shares) {
    const double percent = coverage.headwords == 0 ? 0 : 100.0 * share.held / coverage.headwords;
    print(QStringLiteral("%1: %2 / %3 (%4 %)")
              .arg(share.table)
              .arg(share.held)
              .arg(coverage.headwords)
              .arg(percent, 0, 'f', 1),
          stdout);
  }
  if (!missing) return;
  for (const QString& headword : coverage.missing) print(headword, stdout);
}

void describe(QCommandLineParser& parser) {
  parser.setApplicationDescription(
      QStringLiteral("学習内容のファイルを調べ、個人データベースを作ります。\n\n"
                     "  tavoli-content check フォルダー [--strict] [--coverage 一覧 [--missing]]\n"
                     "  tavoli-content build フォルダー -o データベース\n"
                     "  tavoli-content dump データベース -o フォルダー\n"
                     "  tavoli-content readings フォルダー\n"
                     "  tavoli-content update 新しい教材 --into データベース"
                     " [--lessons フォルダー]"));
  parser.addHelpOption();
  parser.addOption({optionTarget, QStringLiteral("書き込み先"), QStringLiteral("書き込み先")});
  parser.addOption({optionForce, QStringLiteral("すでにあるファイルを置き換えます。")});
  parser.addOption({optionStrict, QStringLiteral("警告も誤りとして扱います。")});
  parser.addOption({optionCoverage, QStringLiteral("一覧の見出し語がどれだけあるか数えます。"),
                    QStringLiteral("一覧")});
  parser.addOption({optionMissing, QStringLiteral("一覧のうち、ない見出し語を書き出します。")});
  parser.addOption({optionInto, QStringLiteral("新しい教材を取り込む学習者のデータベース"),
                    QStringLiteral("データベース")});
  parser.addOption({optionLessons, QStringLiteral("一緒に新しくするレッスンファイルのフォルダー"),
                    QStringLiteral("フォルダー")});
  parser.addPositionalArgument(QStringLiteral("命令"),
                               QStringLiteral("check、build、dump、readings、update"));
  parser.addPositionalArgument(QStringLiteral("対象"), QStringLiteral("読むもの"));
}

Problems update(Files& files, const QString& content, const QString& learner,
                const QString& lessons) {
  const ContentUpdate done = updateContent(files, SystemClock(), content, learner, lessons);
  if (!done.problems.empty()) return done.problems;
  for (const Problem& row : done.untouched) print(row, QString(), QString());
  print(
      QStringLiteral("取り込みました。追加 %1、変更 %2（うち改名 %3）。前のものは %4 にあります。")
          .arg(QString::number(done.added), QString::number(done.changed),
               QString::number(done.renamed), done.backup),
      stdout);
  return {};
}

/// Key, text and reading of everything that a Japanese voice may get, a line each.
Problems readings(const ContentTool& tool, const QString& folder) {
  const auto reading =
      KanaReading::open(KanaReading::dictionariesFor(QCoreApplication::applicationDirPath()));
  if (!reading)
    return {{folder, 0, QStringLiteral("読みを調べる辞書（MeCab の ipadic）がありません。")}};
  const ContentTool::ReadOut found = tool.readings(folder, *reading);
  for (const ContentReading& line : found.readings)
    print(line.key + u'\t' + line.text + u'\t' + line.reading, stdout);
  return found.problems;
}

int usage(const QCommandLineParser& parser, const QString& message) {
  print(message);
  print(parser.helpText());
  return exitUsage;
}

/// Does what the arguments say, and returns the exit status.
int perform(const QCommandLineParser& parser) {
  const QStringList arguments = parser.positionalArguments();
  if (arguments.size() != 2)
    return usage(parser, QStringLiteral("命令と対象を一つずつ書いてください。"));

  SystemFiles files;
  ContentTool tool(files);
  const QString target = parser.value(optionTarget);
  const bool force = parser.isSet(optionForce);
  const QString& command = arguments[0];
  const QString& subject = arguments[1];
  const bool writes = command == QStringLiteral("build") || command == QStringLiteral("dump");
  if (writes && target.isEmpty())
    return usage(parser, QStringLiteral("-o で書き込み先を指定してください。"));
  const QString learner = parser.value(optionInto);
  if (command == QStringLiteral("update") && learner.isEmpty())
    return usage(parser, QStringLiteral("--into で学習者のデータベースを指定してください。"));

  Problems problems;
  bool warned = false;
  if (command == QStringLiteral("check")) {
    const ContentTool::Findings found = tool.check(subject, parser.value(optionCoverage));
    problems = found.problems;
    print(found.warnings);
    warned = !found.warnings.empty();
    if (found.coverage) print(*found.coverage, parser.isSet(optionMissing));
  } else if (command == QStringLiteral("build"))
    problems = tool.build(subject, target, force);
  else if (command == QStringLiteral("dump"))
    problems = tool.dump(subject, target, force);
  else if (command == QStringLiteral("readings"))
    problems = readings(tool, subject);
  else if (command == QStringLiteral("update"))
    problems = update(files, subject, learner, parser.value(optionLessons));
  else
    return usage(parser, QStringLiteral("「%1」という命令はありません。").arg(command));

  for (const Problem& problem : problems) print(problem, QString(), QString());
  const bool well = problems.empty() && !(warned && parser.isSet(optionStrict));
  return well ? exitWell : exitProblems;
}

}  // namespace

int main(int argc, char* argv[]) {
  writeLogTo(logFilePath());
  const QCoreApplication application(argc, argv);

  QCommandLineParser parser;
  describe(parser);
  if (!parser.parse(application.arguments())) return usage(parser, parser.errorText());
  if (parser.isSet(optionHelp)) {
    print(parser.helpText(), stdout);
    return exitWell;
  }
  return perform(parser);
}
