#include "app/CommandLine.h"

#include <QCommandLineParser>

namespace tavoli {

namespace {

QString dashed(const QString& name) {
  return (name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name;
}

/// The usage, with an option a line.
QString usage(const QList<QCommandLineOption>& options) {
  QString text = QStringLiteral("Tavoli: 英語ドリル\n使い方: tavoli [オプション]\n\n");
  constexpr int namesWidth = 24;
  for (const QCommandLineOption& option : options) {
    QStringList names;
    for (const QString& name : option.names()) names.append(dashed(name));
    QString left = names.join(QStringLiteral(", "));
    if (!option.valueName().isEmpty()) left += u' ' + option.valueName();
    text += QStringLiteral("  ") + left.leftJustified(namesWidth) + option.description() + u'\n';
  }
  return text;
}

QString complaintOf(const QCommandLineParser& parser) {
  const QStringList unknown = parser.unknownOptionNames();
  if (unknown.isEmpty())
    return QStringLiteral("値が足りないか多すぎます。tavoli --help で確かめてください。");
  return dashed(unknown.first()) +
         QStringLiteral(": このオプションはありません。tavoli --help で確かめてください。");
}

}  // namespace

CommandLine parseCommandLine(const QStringList& arguments, const QString& version) {
  QCommandLineParser parser;
  const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                QStringLiteral("この説明を表示します。"));
  const QCommandLineOption showVersion({QStringLiteral("v"), QStringLiteral("version")},
                                       QStringLiteral("版を表示します。"));
  const QCommandLineOption terminal(QStringLiteral("terminal"),
                                    QStringLiteral("端末で練習します。"));
  const QCommandLineOption folder(QStringLiteral("app-folder"),
                                  QStringLiteral("データを置くフォルダ"), QStringLiteral("DIR"));
  const QCommandLineOption user(QStringLiteral("user"), QStringLiteral("ユーザーID（端末のみ）"),
                                QStringLiteral("ID"));
  const QCommandLineOption password(
      QStringLiteral("password"),
      QStringLiteral("パスワード（端末のみ）。実行中の引数はほかの利用者にも見えるので、環境変数 "
                     "TAVOLI_PASSWORD で渡すか、省略して入力してください。"),
      QStringLiteral("TEXT"));
  const QCommandLineOption set(QStringLiteral("set"),
                               QStringLiteral("今回の練習条件を変えます（端末のみ、何度でも）。"),
                               QStringLiteral("NAME=VALUE"));
  const QList options = {help, showVersion, terminal, folder, user, password, set};
  parser.addOptions(options);

  CommandLine line;
  if (!parser.parse(arguments)) {
    line.complaint = complaintOf(parser);
    return line;
  }
  if (parser.isSet(help)) line.information = usage(options);
  if (parser.isSet(showVersion)) line.information = QStringLiteral("tavoli %1\n").arg(version);
  line.terminal = parser.isSet(terminal);
  line.applicationFolder = parser.value(folder);
  if (parser.isSet(user)) line.terminalOptions.user = parser.value(user);
  if (parser.isSet(password)) line.terminalOptions.password = parser.value(password);
  for (const QString& setting : parser.values(set)) {
    const qsizetype equals = setting.indexOf(u'=');
    if (equals < 1)
      line.complaint = QStringLiteral("--set %1: NAME=VALUE の形にしてください。").arg(setting);
    else
      line.terminalOptions.settings.append({setting.left(equals), setting.sliced(equals + 1)});
  }
  if (!parser.positionalArguments().isEmpty())
    line.complaint =
        QStringLiteral("%1: この引数はありません。").arg(parser.positionalArguments().first());
  if (!line.terminal && (parser.isSet(user) || parser.isSet(password) || parser.isSet(set)))
    line.complaint =
        QStringLiteral("--user、--password、--set は --terminal と一緒に使ってください。");
  return line;
}

}  // namespace tavoli
