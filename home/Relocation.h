// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace tavoli {

class Files;

/// Whether the text opens the placement of the learners' files.
bool isAccessPassword(const QString& text);

/// Moves the place of the learners' files: copies the folder that TavoAlloc.txt names to another
/// one and has TavoAlloc.txt name that. The old folder stays as it is; the new place counts from
/// the next start of the program.
class Relocation {
 public:
  enum class [[nodiscard]] Result{
      Placed,
      SameFolder,    ///< nothing was done
      InsideSource,  ///< nothing was done
      CopyFailed,    ///< the present place stays; some files may already stand in the target
      NotRecorded,   ///< all copied, but TavoAlloc.txt cannot be written: the present place stays
  };

  Relocation(Files& files, const QString& applicationFolder);

  /// The folder that the files are placed in below the chosen one.
  static QString target(const QString& chosenFolder);

  /// Places the files in `target(chosenFolder)`. A file there that holds what the one to be copied
  /// does not is kept, with its time behind its name.
  Result place(const QString& chosenFolder);

 private:
  [[nodiscard]] bool copyFolder(const QString& from, const QString& to);
  [[nodiscard]] bool copyFile(const QString& from, const QString& to);
  /// Puts a target file that must not be lost, and the journal that belongs to it, out of the way.
  [[nodiscard]] bool clearTarget(const QString& from, const QString& to);

  Files& m_files;
  QString m_applicationFolder;
};

}  // namespace tavoli
