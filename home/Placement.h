// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace tavoli {

class Files;

/// The folder of the learners' data below the application's folder.
QString defaultDataFolder(const QString& applicationFolder);

/// The standard place of lesson files.
QString lessonFolder(const QString& applicationFolder);

/// The placed folder that TavoAlloc.txt in the application's folder names. A file that is missing,
/// unreadable or shorter than two characters is made again with the default folder.
QString readPlacement(Files& files, const QString& applicationFolder);

/// The application's folder, where the program's own data lie. Beside a program in its build folder
/// it is that folder's `app`; for an installed program it is the user's own data folder.
QString applicationFolderFor(const QString& programFolder);

/// The content that was delivered with the program, as a new learner's database.
QString deliveredContent(const QString& programFolder);

/// Copies what was delivered with the program (databases, lesson files) into the application's
/// folder. What is already there stays as it is. False when something could not be copied.
[[nodiscard]] bool fillApplicationFolder(Files& files, const QString& programFolder,
                                         const QString& applicationFolder);

}  // namespace tavoli
