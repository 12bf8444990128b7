// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/ContentNotes.h"

#include <QSet>

#include "contentbuilder/SourceText.h"
#include "data/Schema.h"
#include "data/Text.h"
#include "data/TextFile.h"

namespace tavoli {

namespace {

/// No dictionary, by its name.
const QString tableNotes = QStringLiteral("USysContent");
const QString noteDeclined = QStringLiteral("declined");

/// The table of notes, made where it is missing.
std::unique_ptr<TableCursor> openNotes(Database& database) {
  if (!database.TableDefs().contains(tableNotes) && !database.createTable(tableNotes))
    return nullptr;
  return database.OpenRecordset(tableNotes);
}

int numberNoted(const QString& note, Database& database) {
  const auto rows = database.OpenRecordset(tableNotes);
  if (!rows) return 0;
  rows->Seek(SeekOp::Equal, note);
  return numberOf(rows->text(field発同日コ));
}

int readNumber(const SourceFile& file, Problems& problems) {
  const int number = numberOf(QString::fromUtf8(file.bytes));
  if (number < 1)
    problems.push_back({file.name, 1, QStringLiteral("教材の番号を1以上の数で書いてください。")});
  return number;
}

bool holds(const ContentTable& table, const QString& key) {
  return std::any_of(table.rows.begin(), table.rows.end(),
                     [&](const ContentRow& row) { return row.key == key; });
}

class RenamesReader {
 public:
  RenamesReader(const std::vector<ContentTable>& tables, Problems& problems)
      : m_tables(tables), m_problems(problems) {}

  QString read(const SourceFile& file) {
    QStringList lines;
    const std::optional<SourceText> source = readSource(file, m_problems);
    if (!source) return {};
    for (const SourceLine& line : source->lines) {
      if (trimBlanks(line.text).isEmpty()) continue;
      const QString problem = problemOf(line.text.split(u'\t'));
      if (!problem.isEmpty()) m_problems.push_back({file.name, line.number, problem});
      lines.append(line.text);
    }
    const Renames renames({{renamesFile, lines.join(u'\n')}});
    for (const SourceLine& line : source->lines) {
      const QString old = line.text.section(u'\t', 0, 0);
      const QString newest = renames.newest(old);
      if (m_olds.contains(old) && newest == old)
        m_problems.push_back(
            {file.name, line.number, QStringLiteral("「%1」の改名が元に戻っています。").arg(old)});
      else if (m_olds.contains(old) && !isKnown(newest))
        m_problems.push_back(
            {file.name, line.number, QStringLiteral("「%1」はどの表にもありません。").arg(newest)});
    }
    return lines.join(u'\n');
  }

 private:
  QString problemOf(const QStringList& columns) {
    if (columns.size() != 2 || columns[0].isEmpty() || columns[1].isEmpty())
      return QStringLiteral("前の「英語」か文番、タブ、今のものを書いてください。");
    if (m_olds.contains(columns[0]))
      return QStringLiteral("「%1」の改名が二つあります。").arg(columns[0]);
    m_olds.insert(columns[0]);
    for (const ContentTable& table : m_tables) {
      if (holds(table, columns[0]) && holds(table, columns[1]))
        return QStringLiteral(
                   "表%1に「%2」も「%3」もあります。改名ならどちらかだけにして"
                   "ください。")
            .arg(table.name, columns[0], columns[1]);
    }
    return {};
  }

  bool isKnown(const QString& key) const {
    return std::any_of(m_tables.begin(), m_tables.end(),
                       [&](const ContentTable& table) { return holds(table, key); });
  }

  const std::vector<ContentTable>& m_tables;
  Problems& m_problems;
  QSet<QString> m_olds;
};

}  // namespace

bool isLesson(const QString& name) {
  return name.startsWith(lessonsFolder + u'/');
}

ContentNotes makeNotes(const std::vector<SourceFile>& files,
                       const std::vector<ContentTable>& tables, Problems& problems) {
  ContentNotes notes;
  for (const SourceFile& file : files) {
    if (file.name == numberFile)
      notes[numberFile] = QString::number(readNumber(file, problems));
    else if (file.name == renamesFile)
      notes[renamesFile] = RenamesReader(tables, problems).read(file);
    else
      notes[file.name] = decodeText(file.bytes).value_or(QString());
  }
  for (const ContentTable& table : tables)
    for (const SourceLayout& layout : table.layouts) notes[layout.file] = layout.lines.join(u'\n');
  return notes;
}

bool storeNotes(const ContentNotes& notes, Database& database) {
  const auto rows = openNotes(database);
  if (!rows) return false;
  ContentNotes all = notes;
  for (; !rows->atEOF(); rows->MoveNext())
    if (!all.contains(rows->key())) all[rows->key()] = QString();
  for (auto note = all.cbegin(); note != all.cend(); ++note) {
    if (!rows->EditOrAddNew(note.key())) return false;
    rows->setValue(field発同日コ, note.value());
    if (!rows->Update()) return false;
  }
  return true;
}

ContentNotes notesIn(Database& database) {
  ContentNotes notes;
  if (!database.TableDefs().contains(tableNotes)) return notes;
  const auto rows = database.OpenRecordset(tableNotes);
  for (; rows && !rows->atEOF(); rows->MoveNext())
    if (const QString text = rows->text(field発同日コ); !text.isEmpty()) notes[rows->key()] = text;
  return notes;
}

int contentNumber(const ContentNotes& notes) {
  return numberOf(notes.value(numberFile));
}

int contentNumber(Database& database) {
  return numberNoted(numberFile, database);
}

int declinedNumber(Database& database) {
  return numberNoted(noteDeclined, database);
}

bool storeDeclined(int number, Database& database) {
  const auto rows = openNotes(database);
  if (!rows || !rows->EditOrAddNew(noteDeclined)) return false;
  rows->setValue(field発同日コ, QString::number(number));
  return rows->Update();
}

Renames::Renames(const ContentNotes& notes) {
  for (const QString& line : notes.value(renamesFile).split(u'\n', Qt::SkipEmptyParts))
    m_new.insert(line.section(u'\t', 0, 0), line.section(u'\t', 1, 1));
}

QString Renames::newest(const QString& key) const {
  QString name = key;
  for (qsizetype step = 0; step < m_new.size() && m_new.contains(name); ++step)
    name = m_new.value(name);
  return m_new.contains(name) ? key : name;
}

}  // namespace tavoli
