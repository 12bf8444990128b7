#pragma once

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QAction>
#include <QScrollBar>

#include <gtest/gtest.h>

namespace tavoli::test {

/// Expects a name for those who cannot see it of every control and menu entry that a window's own
/// code made, and returns how many there are.
inline int expectNames(const QWidget& window) {
  int controls = 0;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const bool clickable = qobject_cast<QAbstractButton*>(widget) ||
                           qobject_cast<QScrollBar*>(widget) ||
                           widget->cursor().shape() == Qt::PointingHandCursor;
    const bool ownedByAControl = qobject_cast<QAbstractScrollArea*>(widget->parentWidget()) ||
                                 widget->parentWidget()->objectName().startsWith(u"qt_") ||
                                 widget->objectName().startsWith(u"qt_");
    if (ownedByAControl || (!clickable && !(widget->focusPolicy() & Qt::TabFocus))) continue;
    ++controls;
    QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(widget);
    EXPECT_TRUE(seen && !seen->text(QAccessible::Name).isEmpty())
        << widget->metaObject()->className() << " " << qPrintable(widget->objectName());
  }
  for (const QAction* action : window.findChildren<QAction*>()) {
    if (action->objectName().isEmpty()) continue;
    ++controls;
    EXPECT_FALSE(action->text().isEmpty()) << qPrintable(action->objectName());
  }
  return controls;
}

}  // namespace tavoli::test
