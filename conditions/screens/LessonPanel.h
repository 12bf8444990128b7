// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QStringListModel>

#include "data/Codes.h"

namespace tavoli {

class ConditionsRules;
class FolderTree;

/// The choice of a lesson file: its name, the folders and the files in them, and what is in it.
class LessonPanel final : public QGroupBox {
  Q_OBJECT
 public:
  LessonPanel(ConditionsRules& rules, QWidget* parent);

  void showMethod(SelMethod selMethod);
  void showFolder(const QString& folder);
  void showName(const QString& name);
  void showLesson(const QStringList& lines, const QString& trouble);
  void focusName() { m_name->setFocus(); }

 private:
  QListView* makeList(const QString& name, const QString& accessibleName, QStringListModel& model);
  void arrange();
  void listFiles();
  void pick(const QModelIndex& file);
  void markFile();

  ConditionsRules& m_rules;
  QStringListModel m_fileNames;
  QStringListModel m_lines;
  bool m_previewed = false;
  QLineEdit* m_name;
  QPushButton* m_standard;
  FolderTree* m_folders;
  QListView* m_files;
  QListView* m_preview;
  QLabel* m_trouble;
  QGridLayout* m_grid;
};

}  // namespace tavoli
