// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/LessonChoice.h"

#include "data/LessonFile.h"
#include "data/Text.h"
#include "system/Files.h"

using namespace Qt::StringLiterals;

namespace tavoli {

void LessonChoice::takeFromConditions() {
  m_text = m_conditions.lessonFile;
  read();
}

void LessonChoice::setText(const QString& text, const QString& folder) {
  m_text = text;
  const QString name = trimBlanks(text);
  // The record keeps folder and file in one text, the mark between them.
  if (!name.isEmpty() && !folder.contains(fieldMark) && m_files.exists(pathIn(folder, name)))
    m_conditions.lessonFolder = folder;
}

void LessonChoice::read() {
  m_conditions.lessonFile = trimBlanks(m_text);
  m_lines.clear();
  m_trouble.clear();
  if (!exists()) return;
  const auto lines = readLessonLines(m_files, path());
  m_lines = lines.value_or(QStringList()).mid(0, maxLessonLines);
  if (!lines)
    m_trouble =
        u"%1 は読めません。レッスンファイル（文字だけのファイル）を選び直してください。"_s.arg(
            path());
}

void LessonChoice::dropMissing() {
  if (!exists()) m_conditions.lessonFile.clear();
}

bool LessonChoice::exists() const {
  return !m_conditions.lessonFile.isEmpty() && m_files.exists(m_conditions.lessonPath());
}

QString LessonChoice::path() const {
  return pathIn(m_conditions.lessonFolder, trimBlanks(m_text));
}

}  // namespace tavoli
