#pragma once

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QAction>
#include <QScrollBar>
#include <QSplitterHandle>

#include <gtest/gtest.h>

namespace tavoli::test {

/// Expects a name without padding, for those who cannot see it, of every control, splitter handle
/// and menu entry that a window's own code made, and returns how many there are.
inline int expectNames(const QWidget& window) {
  int controls = 0;
  const auto expectName = [&](const QString& name, const QObject& control) {
    ++controls;
    EXPECT_TRUE(!name.isEmpty() && name == name.trimmed())
        << control.metaObject()->className() << " " << qPrintable(control.objectName()) << " \""
        << qPrintable(name) << '"';
  };
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const bool clickable = qobject_cast<QAbstractButton*>(widget) ||
                           qobject_cast<QScrollBar*>(widget) ||
                           widget->cursor().shape() == Qt::PointingHandCursor;
    const bool handle = qobject_cast<QSplitterHandle*>(widget);
    const bool ownedByAControl = qobject_cast<QAbstractScrollArea*>(widget->parentWidget()) ||
                                 widget->parentWidget()->objectName().startsWith(u"qt_") ||
                                 widget->objectName().startsWith(u"qt_");
    if (handle && widget->isHidden()) continue;
    if (!handle && (ownedByAControl || (!clickable && !(widget->focusPolicy() & Qt::TabFocus))))
      continue;
    QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(widget);
    expectName(seen ? seen->text(QAccessible::Name) : QString(), *widget);
  }
  for (const QAction* action : window.findChildren<QAction*>())
    if (!action->objectName().isEmpty() && action->isEnabled()) expectName(action->text(), *action);
  return controls;
}

}  // namespace tavoli::test
