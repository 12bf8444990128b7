// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include "app/Module1.h"
#include "home/Relocation.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace tavoli {

class Dialogs;

/// The dialog that places the learners' files in another folder.
class TAVO11 final : public QDialog {
 public:
  TAVO11(Module1& module, Files& files, Dialogs& dialogs, QWidget* tavo1);

 private:
  void arrange();
  void browse();
  void run();
  QString message(Relocation::Result result) const;

  Dialogs& m_dialogs;
  Relocation m_relocation;
  QLabel* m_label1;
  QLabel* m_label2;
  QLineEdit* m_text1;
  QLineEdit* m_text2;
  QPushButton* m_command1;
  QPushButton* m_command2;
  QPushButton* m_command3;
};

}  // namespace tavoli
