// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contentbuilder/ContentNotes.h"
#include "contentbuilder/Problem.h"

namespace tavoli {

class Files;

/// Brings the lesson files of a folder up to the new content. A delivered lesson that nobody has
/// changed since becomes the new one; new ones are added; in all others the entries that were
/// renamed get their new name, and all else in them stays. What could not be written is added to
/// `untouched`.
void updateLessons(Files& files, const QString& folder, const ContentNotes& before,
                   const ContentNotes& now, Problems& untouched);

}  // namespace tavoli
