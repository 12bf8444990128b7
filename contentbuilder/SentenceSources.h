#pragma once

#include <optional>

#include "contentbuilder/ContentTable.h"
#include "contentbuilder/Problem.h"
#include "contentbuilder/SourceText.h"
#include "data/CurrentRecord.h"

// The sentences files: one row of BDIC a block.
namespace tavoli {

/// A course's sentences: the numbers from `from` up to below `below`, by code unit.
struct SentenceCourse {
  QString name;
  QString from;
  QString below;

  bool holds(const QString& 文番) const { return 文番 >= from && 文番 < below; }
};

extern const std::vector<SentenceCourse> sentenceCourses;

/// The rows of a sentences file. With a new problem they are not fit to be stored.
std::vector<ContentRow> parseSentences(const SourceText& source, const SentenceCourse& course,
                                       KeyPlaces& places, Problems& problems);

/// The block of a sentence, without an empty line around it; `record` is its record taken apart.
QString sentenceSource(const ContentRow& row, const CurrentRecord& record);

}  // namespace tavoli
