// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/LessonUpdate.h"

#include <QDir>
#include <QDirIterator>

#include <algorithm>

#include "data/Text.h"
#include "data/TextFile.h"
#include "system/Files.h"

namespace tavoli {

namespace {

/// The entry under its new name. A comment has none.
QString renamedEntry(const QString& line, const Renames& renames) {
  const QString stored = storedSpelling(line);
  if (!isSentenceEntry(stored)) {
    const QString name = trimBlanks(stored);
    const QString newest = renames.newest(name);
    return newest == name ? line : newest;
  }
  const QString 文番 = trimBlanks(cut(stored, 1, 6));
  const QString newest = renames.newest(文番);
  return newest == 文番 ? line : sentencePlaces(newest) + cutFrom(line, 7);
}

bool isAscii(const QString& text) {
  return std::all_of(text.begin(), text.end(), [](QChar c) { return c <= u'~'; });
}

/// The file with its renamed entries. The bytes of all other lines stay what they are, unless a new
/// name has no place among them: then the file becomes UTF-8.
QByteArray renamedLesson(const QByteArray& bytes, const Renames& renames) {
  const std::optional<QString> text = decodeText(bytes);
  if (!text) return bytes;
  QStringList lines = text->split(u'\n');
  QList<QByteArray> byteLines = bytes.split('\n');
  bool plain = true;
  for (qsizetype i = 0; i < lines.size(); ++i) {
    const bool returned = lines[i].endsWith(u'\r');
    const QString entry = returned ? lines[i].chopped(1) : lines[i];
    const QString renamed = renamedEntry(entry, renames);
    if (renamed == entry) continue;
    plain = plain && isAscii(renamed);
    lines[i] = returned ? renamed + u'\r' : renamed;
    byteLines[i] = lines[i].toUtf8();
  }
  return plain ? byteLines.join('\n') : lines.join(u'\n').toUtf8();
}

bool sameText(const QByteArray& bytes, const QString& text) {
  const std::optional<QString> decoded = decodeText(bytes);
  return decoded && splitLines(*decoded) == splitLines(text);
}

class LessonUpdate {
 public:
  LessonUpdate(Files& files, const QString& folder, const ContentNotes& before,
               const ContentNotes& now, Problems& untouched)
      : m_files(files), m_folder(folder), m_before(before), m_now(now), m_untouched(untouched) {}

  void run() {
    QDirIterator all(m_folder.path(), {QStringLiteral("*.tav"), QStringLiteral("*.txt")},
                     QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext()) update(all.next());
    for (auto note = m_now.cbegin(); note != m_now.cend(); ++note) {
      const QString path = m_folder.filePath(note.key().sliced(lessonsStart(note.key())));
      // One that was delivered before and is gone was not wanted.
      if (isLesson(note.key()) && !m_before.contains(note.key()) && !m_files.exists(path))
        write(path, note.value().toUtf8());
    }
  }

 private:
  static qsizetype lessonsStart(const QString& name) {
    return isLesson(name) ? lessonsFolder.size() + 1 : 0;
  }

  void update(const QString& path) {
    const std::optional<QByteArray> bytes = m_files.read(path);
    if (!bytes) return;
    const QString name = lessonsFolder + u'/' + m_folder.relativeFilePath(path);
    const bool unchanged = m_before.contains(name) && sameText(*bytes, m_before[name]);
    if (unchanged && m_now.contains(name)) {
      if (m_before[name] != m_now[name]) write(path, m_now[name].toUtf8());
      return;
    }
    const QByteArray renamed = renamedLesson(*bytes, m_renames);
    if (renamed != *bytes) write(path, renamed);
  }

  void write(const QString& path, const QByteArray& bytes) {
    if (m_files.write(path, bytes) != FileResult::Ok)
      m_untouched.push_back({path, 0, QStringLiteral("書き込めなかったので、そのままです。")});
  }

  Files& m_files;
  const QDir m_folder;
  const ContentNotes& m_before;
  const ContentNotes& m_now;
  const Renames m_renames{m_now};
  Problems& m_untouched;
};

}  // namespace

void updateLessons(Files& files, const QString& folder, const ContentNotes& before,
                   const ContentNotes& now, Problems& untouched) {
  LessonUpdate(files, folder, before, now, untouched).run();
}

}  // namespace tavoli
