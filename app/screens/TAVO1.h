// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <QTimer>

#include "app/Login.h"

class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QScreen;

namespace tavoli {

class LoginPicture;

/// The login screen.
class TAVO1 final : public QMainWindow, public LoginScreen {
  Q_OBJECT
 public:
  /// `version` as "major.minor.revision".
  TAVO1(Module1& module, Files& files, Dialogs& dialogs, const QString& version);

  /// The learner is in: the window closes.
  void letIn();

  void setUserId(const QString& text) override;
  void focusUserId() override;
  void focusPassword() override;
  void setBusy(bool busy) override;
  void showEngineTrouble() override;

 Q_SIGNALS:
  /// One press of "次へ" with the typed id and password.
  void next(const QString& id, const QString& password);
  /// The learner left without a login, by "終了" or by closing the window.
  void left();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void makeFields();
  void makeMenus(const QString& version);
  void watch(const QScreen* screen) const;
  /// Gives the window its size on this screen and lays it out again; what was typed stays.
  void placeForm();
  QSize frameSizeAround() const;
  void layOut();
  void placeFrame2();
  bool keyPressed(const QObject* field, int key);
  void logIn();
  void relocate();
  void showCredits();

  Module1& m_module;
  Files& m_files;
  Dialogs& m_dialogs;
  LoginPicture* m_picture1;
  QFrame* m_frame2;
  QLabel* m_label4;
  QLineEdit* m_text2;
  QLineEdit* m_text1;
  QPushButton* m_command2;
  QPushButton* m_command1;
  QTimer m_timer1{this};
  double m_pointSize;  ///< of the program's font, before any scaling
  bool m_loggedIn = false;
};

}  // namespace tavoli
