// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/screens/FolderTree.h"

#include <QDir>
#include <QKeyEvent>
#include <QStyle>

#include <utility>

namespace tavoli {

namespace {

constexpr int pathRole = Qt::UserRole;

}  // namespace

FolderTree::FolderTree(std::function<void()> opened, QWidget* parent)
    : QTreeView(parent), m_opened(std::move(opened)) {
  setModel(&m_model);
  setHeaderHidden(true);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setItemsExpandable(false);
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setIndentation(fontMetrics().height() / 2);
  connect(this, &QTreeView::clicked, this, &FolderTree::openAt);
}

void FolderTree::open(const QString& folder) {
  const bool there = !folder.isEmpty() && QDir(folder).exists();
  if (!there && !m_folder.isEmpty()) return;
  m_folder = QDir::cleanPath(there ? QDir(folder).absolutePath() : QDir::homePath());
  m_model.clear();
  QStandardItem* present = nullptr;
  const QFileInfoList drives = QDir::drives();
  for (const QFileInfo& drive : drives) {
    const QString root = drive.absoluteFilePath();
    QStandardItem* item = add(m_model.invisibleRootItem(), root, root);
    if (!m_folder.startsWith(root, Qt::CaseInsensitive)) continue;
    present = item;
    QString path = root;
    const QStringList names = m_folder.sliced(root.size()).split(u'/', Qt::SkipEmptyParts);
    for (const QString& name : names) {
      path = QDir(path).filePath(name);
      present = add(present, name, path);
    }
  }
  if (present) {
    const QStringList inside = QDir(m_folder).entryList(
        QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase | QDir::LocaleAware);
    for (const QString& name : inside) add(present, name, QDir(m_folder).filePath(name));
    expandAll();
    setCurrentIndex(present->index());
    scrollTo(present->index(), PositionAtCenter);
  }
  m_opened();
}

QStandardItem* FolderTree::add(QStandardItem* parent, const QString& name, const QString& path) {
  auto* item = new QStandardItem(style()->standardIcon(QStyle::SP_DirIcon), name);
  item->setData(path, pathRole);
  parent->appendRow(item);
  return item;
}

void FolderTree::openAt(const QModelIndex& index) {
  open(index.data(pathRole).toString());
}

void FolderTree::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    openAt(currentIndex());
  else
    QTreeView::keyPressEvent(event);
}

void FolderTree::showEvent(QShowEvent* event) {
  QTreeView::showEvent(event);
  scrollTo(currentIndex(), PositionAtCenter);
}

}  // namespace tavoli
