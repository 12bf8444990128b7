// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include "conditions/PracticeConditions.h"

namespace tavoli {

class Files;

/// The lesson file that is being chosen: the name as it stands in its box, and what the file holds.
/// The conditions take the file over.
class LessonChoice {
 public:
  LessonChoice(const Files& files, PracticeConditions& conditions)
      : m_files(files), m_conditions(conditions) {}

  /// Takes the conditions' file as the one chosen so far, and reads it.
  void takeFromConditions();
  /// Takes a name as it stands in the box; `folder` goes with it where it holds such a file.
  void setText(const QString& text, const QString& folder);
  const QString& text() const { return m_text; }

  /// Reads the file that the box names.
  void read();
  /// Leaves the conditions without a file where the named one is not there.
  void dropMissing();

  bool exists() const;
  /// The file that the box names, there or not.
  QString path() const;
  const QStringList& lines() const { return m_lines; }
  /// Why the file that is there cannot be read; empty when it can.
  const QString& trouble() const { return m_trouble; }

 private:
  const Files& m_files;
  PracticeConditions& m_conditions;
  QString m_text;
  QStringList m_lines;
  QString m_trouble;
};

}  // namespace tavoli
