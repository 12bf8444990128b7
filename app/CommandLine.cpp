// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/CommandLine.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

QString dashed(const QString& name) {
  return (name.size() == 1 ? u"-"_s : u"--"_s) + name;
}

/// The usage, with an option a line.
QString usage(const QList<QCommandLineOption>& options) {
  QString text = u"Tavoli: 英語ドリル\n使い方: tavoli [オプション]\n\n"_s;
  constexpr int namesWidth = 24;
  for (const QCommandLineOption& option : options) {
    QStringList names;
    for (const QString& name : option.names()) names.append(dashed(name));
    QString left = names.join(u", "_s);
    if (!option.valueName().isEmpty()) left += u' ' + option.valueName();
    text += u"  "_s + left.leftJustified(namesWidth) + option.description() + u'\n';
  }
  return text;
}

QString complaintOf(const QCommandLineParser& parser) {
  const QStringList unknown = parser.unknownOptionNames();
  if (unknown.isEmpty()) return u"値が足りないか多すぎます。tavoli --help で確かめてください。"_s;
  return dashed(unknown.first()) +
         u": このオプションはありません。tavoli --help で確かめてください。"_s;
}

}  // namespace

CommandLine parseCommandLine(const QStringList& arguments, const QString& version) {
  QCommandLineParser parser;
  const QCommandLineOption help({u"h"_s, u"help"_s}, u"この説明を表示します。"_s);
  const QCommandLineOption showVersion({u"v"_s, u"version"_s}, u"版を表示します。"_s);
  const QCommandLineOption terminal(u"terminal"_s, u"端末で練習します。"_s);
  const QCommandLineOption folder(u"app-folder"_s, u"データを置くフォルダ"_s, u"DIR"_s);
  const QCommandLineOption user(u"user"_s, u"ユーザーID（端末のみ）"_s, u"ID"_s);
  const QCommandLineOption password(
      u"password"_s,
      u"パスワード（端末のみ）。実行中の引数はほかの利用者にも見えるので、環境変数 "
      "TAVOLI_PASSWORD で渡すか、省略して入力してください。"_s,
      u"TEXT"_s);
  const QCommandLineOption set(u"set"_s, u"今回の練習条件を変えます（端末のみ、何度でも）。"_s,
                               u"NAME=VALUE"_s);
  const QList options = {help, showVersion, terminal, folder, user, password, set};
  parser.addOptions(options);

  CommandLine line;
  if (!parser.parse(arguments)) {
    line.complaint = complaintOf(parser);
    return line;
  }
  if (parser.isSet(help)) line.information = usage(options);
  if (parser.isSet(showVersion)) line.information = u"tavoli %1\n"_s.arg(version);
  line.terminal = parser.isSet(terminal);
  line.applicationFolder = parser.value(folder);
  if (parser.isSet(user)) line.terminalOptions.user = parser.value(user);
  if (parser.isSet(password)) line.terminalOptions.password = parser.value(password);
  for (const QString& setting : parser.values(set)) {
    const qsizetype equals = setting.indexOf(u'=');
    if (equals < 1)
      line.complaint = u"--set %1: NAME=VALUE の形にしてください。"_s.arg(setting);
    else
      line.terminalOptions.settings.append({setting.left(equals), setting.sliced(equals + 1)});
  }
  if (!parser.positionalArguments().isEmpty())
    line.complaint = u"%1: この引数はありません。"_s.arg(parser.positionalArguments().first());
  if (!line.terminal && (parser.isSet(user) || parser.isSet(password) || parser.isSet(set)))
    line.complaint = u"--user、--password、--set は --terminal と一緒に使ってください。"_s;
  return line;
}

}  // namespace tavoli
