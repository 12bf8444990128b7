// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMenu>
#include <QPointer>

namespace tavoli {

/// The pop-up menu of text areas and boxes: cut, copy and paste.
class TextMenu final : public QObject {
  Q_OBJECT
 public:
  explicit TextMenu(QWidget* window);

  /// Opens at right clicks on all text areas and boxes below `part`, instead of their own menus.
  void serve(QWidget* part);

 private:
  void open(QWidget* text, const QPoint& position);
  /// An entry that calls the slot of the text under the menu.
  QAction* add(const QString& name, const QString& caption, const char* slot);

  QMenu* m_menu;
  QAction* m_cut;
  QAction* m_paste;
  QPointer<QWidget> m_text;
};

}  // namespace tavoli
