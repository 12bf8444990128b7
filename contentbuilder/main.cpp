#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

#include <cstdio>

#include "contentbuilder/ContentTool.h"

namespace {

using namespace tavoli;

constexpr int exitWell = 0;
constexpr int exitProblems = 1;
constexpr int exitUsage = 2;

const QString optionTarget = QStringLiteral("o");
const QString optionForce = QStringLiteral("force");

void print(const QString& text, FILE* out = stderr) {
  QTextStream(out) << text << '\n';
}

int usage(const QCommandLineParser& parser, const QString& message) {
  print(message);
  print(parser.helpText());
  return exitUsage;
}

}  // namespace

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);

  QCommandLineParser parser;
  parser.setApplicationDescription(
      QStringLiteral("学習内容のファイルを調べ、個人データベースを作ります。\n\n"
                     "  tavoli-content check フォルダー\n"
                     "  tavoli-content build フォルダー -o データベース\n"
                     "  tavoli-content dump データベース -o フォルダー"));
  const QCommandLineOption help = parser.addHelpOption();
  parser.addOption({optionTarget, QStringLiteral("書き込み先"), QStringLiteral("書き込み先")});
  parser.addOption({optionForce, QStringLiteral("すでにあるファイルを置き換えます。")});
  parser.addPositionalArgument(QStringLiteral("命令"), QStringLiteral("check、build、dump"));
  parser.addPositionalArgument(QStringLiteral("対象"), QStringLiteral("読むもの"));
  if (!parser.parse(application.arguments())) return usage(parser, parser.errorText());
  if (parser.isSet(help)) {
    print(parser.helpText(), stdout);
    return exitWell;
  }
  const QStringList arguments = parser.positionalArguments();
  if (arguments.size() != 2)
    return usage(parser, QStringLiteral("命令と対象を一つずつ書いてください。"));

  SystemFiles files;
  ContentTool tool(files);
  const QString target = parser.value(optionTarget);
  const bool force = parser.isSet(optionForce);
  const QString& command = arguments[0];
  const QString& subject = arguments[1];
  if (command != QStringLiteral("check") && target.isEmpty())
    return usage(parser, QStringLiteral("-o で書き込み先を指定してください。"));

  Problems problems;
  if (command == QStringLiteral("check"))
    problems = tool.check(subject);
  else if (command == QStringLiteral("build"))
    problems = tool.build(subject, target, force);
  else if (command == QStringLiteral("dump"))
    problems = tool.dump(subject, target, force);
  else
    return usage(parser, QStringLiteral("「%1」という命令はありません。").arg(command));

  for (const Problem& problem : problems) {
    const QString line = problem.line > 0 ? QStringLiteral(":%1").arg(problem.line) : QString();
    print(problem.file + line + QStringLiteral(": ") + problem.message);
  }
  return problems.empty() ? exitWell : exitProblems;
}
