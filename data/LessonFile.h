// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace tavoli {

class Files;

inline constexpr int maxLessonLines = 25000;
inline constexpr int lessonLineWidth = 60;

/// The lines of a lesson file as they stand, comments included, each cut to 60 characters. Nothing
/// when the file is missing, unreadable or no text.
[[nodiscard]] std::optional<QStringList> readLessonLines(const Files& files, const QString& path);

/// A line that the practice passes over: it begins with "*" or "!".
bool isPracticeComment(const QString& line);

}  // namespace tavoli
