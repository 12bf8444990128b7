// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/screens/TextMenu.h"

#include <QLineEdit>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace tavoli {

TextMenu::TextMenu(QWidget* window) : QObject(window), m_menu(new QMenu(window)) {
  m_menu->setObjectName(u"popMenu1"_s);
  m_menu->setAccessibleName(u"編集"_s);
  m_cut = add(u"popMenu11"_s, u"切取り"_s, "cut");
  add(u"popMenu12"_s, u"コピー"_s, "copy");
  m_paste = add(u"popMenu13"_s, u"貼付け"_s, "paste");
}

QAction* TextMenu::add(const QString& name, const QString& caption, const char* slot) {
  QAction* action = m_menu->addAction(caption);
  action->setObjectName(name);
  // Areas and boxes have no common class, but slots of the same names.
  connect(action, &QAction::triggered, this, [this, slot] {
    if (m_text) QMetaObject::invokeMethod(m_text, slot);
  });
  return action;
}

void TextMenu::serve(QWidget* part) {
  QWidgetList texts;
  for (QLineEdit* box : part->findChildren<QLineEdit*>()) texts.append(box);
  for (QTextEdit* area : part->findChildren<QTextEdit*>()) texts.append(area);
  for (QWidget* text : std::as_const(texts)) {
    text->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(text, &QWidget::customContextMenuRequested, this,
            [this, text](const QPoint& position) { open(text, position); });
  }
}

void TextMenu::open(QWidget* text, const QPoint& position) {
  const bool writable = !text->property("readOnly").toBool();
  m_text = text;
  m_cut->setEnabled(writable);
  m_paste->setEnabled(writable);
  m_menu->popup(text->mapToGlobal(position));
}

}  // namespace tavoli
