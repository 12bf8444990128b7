#include "ui/screens/TextMenu.h"

#include <QLineEdit>
#include <QTextEdit>

namespace tavoli {

TextMenu::TextMenu(QWidget* window) : QObject(window), m_menu(new QMenu(window)) {
  m_menu->setObjectName(QStringLiteral("popMenu1"));
  m_menu->setAccessibleName(QStringLiteral("編集"));
  m_cut = add(QStringLiteral("popMenu11"), QStringLiteral("切取り"), "cut");
  add(QStringLiteral("popMenu12"), QStringLiteral("コピー"), "copy");
  m_paste = add(QStringLiteral("popMenu13"), QStringLiteral("貼付け"), "paste");
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
