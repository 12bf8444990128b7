// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStandardItemModel>
#include <QTreeView>

#include <functional>

namespace tavoli {

/// The way from the drive down to a folder, and the folders in it. A click or Enter goes to
/// another.
class FolderTree final : public QTreeView {
  Q_OBJECT
 public:
  /// `opened` is called whenever another folder is open.
  FolderTree(std::function<void()> opened, QWidget* parent);

  /// Where there is no such folder, the tree stays where it is; at first it is the learner's own.
  void open(const QString& folder);
  const QString& folder() const { return m_folder; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  QStandardItem* add(QStandardItem* parent, const QString& name, const QString& path);
  void openAt(const QModelIndex& index);

  std::function<void()> m_opened;
  QStandardItemModel m_model;
  QString m_folder;
};

}  // namespace tavoli
