// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/LearningTables.h"

#include "data/Schema.h"

namespace tavoli {

LearningTables::Opened LearningTables::open(const QString& path, const CourseChoice& course) {
  OpenedDatabase opened = openDatabase(path);
  if (!opened.database) return {nullptr, opened.errorNumber};
  std::unique_ptr<LearningTables> tables(new LearningTables(std::move(*opened.database)));
  tables->m_rsBDIC = tables->m_database.OpenRecordset(tableBDIC);
  if (!tables->m_rsBDIC) return {nullptr, openError::notADatabase};
  for (const QString& table : prWhichTable(course)) {
    tables->m_rsTDIC.push_back(tables->m_database.OpenRecordset(table));
    if (!tables->m_rsTDIC.back()) return {nullptr, openError::notADatabase};
  }
  return {std::move(tables), openError::none};
}

}  // namespace tavoli
