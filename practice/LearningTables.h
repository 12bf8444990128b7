#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "conditions/PracticeConditions.h"
#include "data/Database.h"

namespace tavoli {

/// A learner's database with the tables of a course, open for the length of a run.
class LearningTables {
 public:
  /// Nothing when the file cannot be opened or one of the tables is missing; `errorNumber` is then
  /// one of openError, `notADatabase` for a missing table.
  static std::unique_ptr<LearningTables> open(const QString& path, const CourseChoice& course,
                                              int& errorNumber);

  Database& database() { return *m_database; }
  TableCursor& rsBDIC() { return *m_rsBDIC; }
  /// The dictionary at a place of the course's look-up order, from 1; places() says how many.
  TableCursor& rsTDIC(int place) { return *m_rsTDIC[static_cast<size_t>(place - 1)]; }
  int places() const { return static_cast<int>(m_rsTDIC.size()); }

 private:
  LearningTables() = default;

  std::optional<Database> m_database;  // outlives the cursors
  std::unique_ptr<TableCursor> m_rsBDIC;
  std::vector<std::unique_ptr<TableCursor>> m_rsTDIC;
};

}  // namespace tavoli
