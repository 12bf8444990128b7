// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/ContentTool.h"

#include <QDir>
#include <QTemporaryDir>

#include "contentbuilder/AcceptedWarnings.h"
#include "contentbuilder/ContentChecks.h"
#include "contentbuilder/ContentSources.h"
#include "contentbuilder/ContentStore.h"
#include "contentbuilder/LessonChecks.h"

namespace tavoli {

namespace {

/// Lists of warnings that are meant.
const QString acceptedFolder = QStringLiteral("accepted");
/// What readers tried; kept for people.
const QString trialsFolder = QStringLiteral("trials");

/// The paths of the files below `place`, folder by folder.
QStringList filesBelow(const QDir& place) {
  QStringList names = place.entryList(QDir::Files, QDir::Name);
  for (const QString& folder : place.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
    for (const QString& name : filesBelow(QDir(place.filePath(folder))))
      names.append(folder + u'/' + name);
  return names;
}

Problem existing(const QString& path) {
  return {path, 0,
          QStringLiteral("すでにあるので、何も書きませんでした。置き換えるには --force を"
                         "付けてください。")};
}

Problem unwritable(const QString& path) {
  return {path, 0,
          QStringLiteral("書き込めませんでした。フォルダーの権限とディスクの空きを"
                         "確かめてください。")};
}

}  // namespace

ContentTool::Content ContentTool::read(const QString& folder) const {
  Content content;
  Problems& problems = content.problems;
  const QDir place(folder);
  if (!place.exists()) {
    problems.push_back({folder, 0, QStringLiteral("フォルダーがありません。")});
    return content;
  }
  std::vector<SourceFile> sources;
  std::vector<SourceFile> lessons;
  std::vector<SourceFile> accepted;
  std::vector<SourceFile> noted;
  for (const QString& name : filesBelow(place)) {
    const QString within = name.section(u'/', 0, 0);
    if (within == trialsFolder) continue;
    std::vector<SourceFile>& files = within == lessonsFolder                     ? lessons
                                     : within == acceptedFolder                  ? accepted
                                     : name == numberFile || name == renamesFile ? noted
                                                                                 : sources;
    if (const std::optional<QByteArray> bytes = m_files.read(place.filePath(name)))
      files.push_back({name, *bytes});
    else
      problems.push_back({name, 0, QStringLiteral("読めません。権限を確かめてください。")});
  }
  content.tables = readContent(sources, problems);
  checkWording(content.tables, problems, content.warnings);
  checkLessons(lessons, content.tables, problems);
  takeAccepted(accepted, content.warnings, problems);
  noted.insert(noted.end(), lessons.begin(), lessons.end());
  content.notes = makeNotes(noted, content.tables, problems);
  for (Problem& problem : problems) problem.file = place.filePath(problem.file);
  for (Warning& warning : content.warnings)
    warning.problem.file = place.filePath(warning.problem.file);
  return content;
}

ContentTool::Findings ContentTool::check(const QString& folder, const QString& list) const {
  Content content = read(folder);
  Findings findings{std::move(content.problems), std::move(content.warnings), {}};
  if (list.isEmpty()) return findings;
  if (const std::optional<QByteArray> bytes = m_files.read(list))
    findings.coverage = coverageOf(*bytes, content.tables);
  if (!findings.coverage)
    findings.problems.push_back(
        {list, 0, QStringLiteral("一覧を読めません。UTF-8のファイルか確かめてください。")});
  return findings;
}

Problems ContentTool::build(const QString& folder, const QString& target, bool force) {
  Content content = read(folder);
  Problems& problems = content.problems;
  if (m_files.exists(target) && !force) problems.push_back(existing(target));
  if (!problems.empty()) return problems;

  const QTemporaryDir workshop;
  const QString made = workshop.filePath(QStringLiteral("content.mdb"));
  bool stored = false;
  if (std::optional<Database> database = createDatabase(made))
    stored = storeContent(content.tables, content.notes, *database);
  if (!stored || m_files.copy(made, target) != FileResult::Ok)
    problems.push_back(unwritable(target));
  return problems;
}

Problems ContentTool::dump(const QString& database, const QString& folder, bool force) {
  Problems problems;
  OpenedDatabase opened = openDatabase(database);
  if (!opened.database) {
    problems.push_back({database, 0,
                        QStringLiteral("データベースを開けませんでした（エラー番号%1）。"
                                       "ファイルを確かめてください。")
                            .arg(opened.errorNumber)});
    return problems;
  }
  const std::vector<SourceFile> sources = dumpContent(*opened.database, database, problems);
  const QDir place(folder);
  if (!force) {
    Problems inTheWay;
    for (const SourceFile& source : sources) {
      const QString path = place.filePath(source.name);
      if (m_files.exists(path)) inTheWay.push_back(existing(path));
    }
    if (!inTheWay.empty()) return inTheWay;
  }
  for (const SourceFile& source : sources) {
    const QString path = place.filePath(source.name);
    // Where there is no folder there is no file either, and the learner reads so.
    static_cast<void>(m_files.makeFolder(QFileInfo(path).path()));
    if (m_files.write(path, source.bytes) != FileResult::Ok) problems.push_back(unwritable(path));
  }
  return problems;
}

ContentTool::ReadOut ContentTool::readings(const QString& folder,
                                           const KanaReading& reading) const {
  Content content = read(folder);
  return {readingsOf(content.tables, reading), std::move(content.problems)};
}

}  // namespace tavoli
