#pragma once

#include <optional>

#include "contentbuilder/ContentTable.h"
#include "contentbuilder/Problem.h"
#include "contentbuilder/SourceText.h"
#include "data/CurrentRecord.h"

// The sentences files: one row of BDIC a block.
namespace tavoli {

/// A course's sentences by their first and last number.
struct SentenceCourse {
  QString name;
  QString first;
  QString last;

  bool holds(const QString& 文番) const { return 文番 >= first && 文番 <= last; }
};

extern const std::vector<SentenceCourse> sentenceCourses;

/// The rows of a sentences file. With a new problem they are not fit to be stored.
std::vector<ContentRow> parseSentences(const SourceText& source, const SentenceCourse& course,
                                       KeyPlaces& places, Problems& problems);

/// The block of a sentence, without an empty line around it; `record` is its record taken apart.
QString sentenceSource(const ContentRow& row, const CurrentRecord& record);

}  // namespace tavoli
