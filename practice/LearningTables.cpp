#include "practice/LearningTables.h"

#include "data/Schema.h"

namespace tavoli {

std::unique_ptr<LearningTables> LearningTables::open(const QString& path,
                                                     const CourseChoice& course, int& errorNumber) {
  std::unique_ptr<LearningTables> tables(new LearningTables);
  openDatabase(path, tables->m_database, errorNumber);
  if (!tables->m_database) return nullptr;
  errorNumber = openError::notADatabase;
  tables->m_rsBDIC = tables->m_database->OpenRecordset(tableBDIC);
  if (!tables->m_rsBDIC) return nullptr;
  for (const QString& table : prWhichTable(course)) {
    tables->m_rsTDIC.push_back(tables->m_database->OpenRecordset(table));
    if (!tables->m_rsTDIC.back()) return nullptr;
  }
  errorNumber = openError::none;
  return tables;
}

}  // namespace tavoli
