// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <vector>

#include "conditions/PracticeConditions.h"
#include "data/Database.h"

namespace tavoli {

/// A learner's database with the tables of a course, open for the length of a run.
class LearningTables {
 public:
  /// The tables, or nothing when the file cannot be opened or one of them is missing, and why: one
  /// of openError, `notADatabase` for a missing table.
  struct [[nodiscard]] Opened {
    std::unique_ptr<LearningTables> tables;
    int errorNumber = openError::none;
  };
  static Opened open(const QString& path, const CourseChoice& course);

  Database& database() { return m_database; }
  TableCursor& rsBDIC() { return *m_rsBDIC; }
  /// The dictionary at a place of the course's look-up order, from 1; places() says how many.
  TableCursor& rsTDIC(int place) { return *m_rsTDIC[static_cast<size_t>(place - 1)]; }
  int places() const { return static_cast<int>(m_rsTDIC.size()); }

 private:
  explicit LearningTables(Database database) : m_database(std::move(database)) {}

  Database m_database;  // outlives the cursors
  std::unique_ptr<TableCursor> m_rsBDIC;
  std::vector<std::unique_ptr<TableCursor>> m_rsTDIC;
};

}  // namespace tavoli
