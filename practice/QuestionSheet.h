// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>

#include <vector>

#include "itemtext/PageWriter.h"
#include "practice/PracticeSet.h"

namespace tavoli {

/// Questions on paper: each item with its answers and its comment.
class QuestionSheet {
 public:
  /// `printedAt` and the learner's id stand at the head of every page.
  QuestionSheet(const std::vector<PracticeItem>& items, const QString& userId,
                const QDateTime& printedAt);

  /// The marks of an item's texts do not pair; it is printed without them.
  bool unpaired() const { return m_unpaired; }

  /// Draws the document from its first page on.
  void draw(PageSurface& page) const;

 private:
  using Question = std::vector<LabelledText>;

  void add(Question& question, const QString& label, const QString& text);
  Question questionOf(const CurrentRecord& record);

  std::vector<Question> m_questions;
  QString m_head;
  bool m_unpaired = false;
};

}  // namespace tavoli
