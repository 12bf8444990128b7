#pragma once

#include <QString>

#include <functional>

#include "app/Module1.h"
#include "data/Database.h"
#include "system/FileLock.h"

namespace tavoli {

class Clock;
class Dialogs;
class Files;

/// What the login asks of the screen that shows it.
class LoginScreen {
 public:
  virtual ~LoginScreen() = default;
  virtual void setUserId(const QString& text) = 0;
  virtual void focusUserId() = 0;
  virtual void focusPassword() = 0;
  /// A file is being copied, or no longer.
  virtual void setBusy(bool busy) = 0;
  /// The store cannot be used: tells the learner what can be done about it.
  virtual void showEngineTrouble() = 0;
};

/// Turns a typed id into the learner's files: brings them into the working folder, checks or first
/// sets the password, reads the progress, and makes the backup. Never destroys newer work, and
/// keeps the working copy for this program as long as the login lives.
class Login {
 public:
  Login(Module1& module, Files& files, const Clock& clock, Dialogs& dialogs, LoginScreen& screen);

  /// One press of "次へ" with the texts of the two fields. True when the learner is in; the course
  /// of the last run then stands in the shared state. False leaves the screen up for another try.
  bool next(const QString& typedId, const QString& typedPassword);

  /// The program ends and no run was stored: the working copy holds nothing that is to go home, and
  /// must not look newer than the placed one.
  void leaveWithoutRun();

 private:
  bool bringFiles();
  bool takeWorkingCopy();
  bool bringPlacedCopy();
  /// Puts a working copy that is newer than the placed one and differs out of harm's way.
  bool keepNewerWork();
  bool openWorkingCopy(std::optional<Database>& database);
  bool checkPassword(const QString& typedPassword);
  /// Asks a new learner whether the password is right, and stores it. False on No.
  bool setFirstPassword(std::optional<Database>& database, const QString& typedPassword);
  /// Reads the learner's progress; a new month rolls it over.
  bool loadFigures(Database& database);
  bool fail(const QString& message);
  void fetchTexts();
  void backUp();

  Module1& m_module;
  Files& m_files;
  const Clock& m_clock;
  Dialogs& m_dialogs;
  LoginScreen& m_screen;
  FileLock m_lock;
};

}  // namespace tavoli
