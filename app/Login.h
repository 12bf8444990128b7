// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

#include "app/ContentOffer.h"
#include "app/Module1.h"
#include "data/Database.h"

namespace tavoli {

class Clock;
class Dialogs;
class Files;
class WorkingCopy;

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

/// Turns a typed id into the learner's files: has them brought into the working folder, checks or
/// first sets the password, offers new content, reads the progress, and makes the backup.
class Login {
 public:
  /// `workingCopy` is that of the learner in `module`.
  Login(Module1& module, WorkingCopy& workingCopy, Files& files, const Clock& clock,
        Dialogs& dialogs);

  /// One press of "次へ" on `screen` with the texts of the two fields. True when the learner is in;
  /// the course of the last run then stands in the shared state. False leaves the screen up for
  /// another try, and the working copy to other programs.
  bool next(LoginScreen& screen, const QString& typedId, const QString& typedPassword);

 private:
  bool isUnregistered(const QString& id) const;
  bool logIn(const QString& typedPassword);
  /// With the working copy in place.
  bool enter(const QString& typedPassword);
  /// Nothing when it cannot be used; the learner has then been told.
  std::optional<Database> openWorkingCopy();
  bool checkPassword(std::optional<Database>& database, const QString& typedPassword);
  /// Asks a new learner whether the password is right, and stores it. False on No.
  bool setFirstPassword(std::optional<Database>& database, const QString& typedPassword);
  /// False when the database cannot be used any more.
  bool offerContent(std::optional<Database>& database);
  /// Reads the learner's progress; a new month rolls it over.
  bool loadFigures(Database& database);
  bool fail(const QString& message);
  void backUp();

  Module1& m_module;
  WorkingCopy& m_workingCopy;
  Files& m_files;
  const Clock& m_clock;
  Dialogs& m_dialogs;
  ContentOffer m_contentOffer;
  LoginScreen* m_screen = nullptr;  ///< of the present press
};

}  // namespace tavoli
