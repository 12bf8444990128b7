// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "contentbuilder/ContentTable.h"
#include "speech/KanaReading.h"

namespace tavoli {

/// How a Japanese text of the content is read.
struct ContentReading {
  QString key;
  QString text;
  QString reading;  ///< kana with Latin pieces in [ ]
};

/// The readings of every line of the questions and of every meaning, in the order of the tables.
/// Lines without a Japanese letter, which no Japanese voice gets, are left out.
std::vector<ContentReading> readingsOf(const std::vector<ContentTable>& tables,
                                       const KanaReading& reading);

}  // namespace tavoli
