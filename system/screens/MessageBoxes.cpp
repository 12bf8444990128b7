// SPDX-License-Identifier: GPL-3.0-or-later

#include "system/screens/MessageBoxes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QMessageBox>

namespace tavoli {

namespace {

/// Shows the box with the usual cursor, whatever goes on below it.
int run(QMessageBox& box) {
  QList<QCursor> covered;
  for (; QApplication::overrideCursor(); QApplication::restoreOverrideCursor())
    covered.prepend(*QApplication::overrideCursor());
  const int result = box.exec();
  for (const QCursor& cursor : std::as_const(covered)) QApplication::setOverrideCursor(cursor);
  return result;
}

}  // namespace

void MessageBoxes::show(const QString& text) {
  QMessageBox box(QMessageBox::NoIcon, QStringLiteral("Tavoli"), text, QMessageBox::Ok,
                  QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  run(box);
}

bool MessageBoxes::ask(const QString& text) {
  QMessageBox box(QMessageBox::Question, QStringLiteral("Tavoli"), text,
                  QMessageBox::Yes | QMessageBox::No, QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.button(QMessageBox::Yes)->setText(QStringLiteral("はい(&Y)"));
  box.button(QMessageBox::No)->setText(QStringLiteral("いいえ(&N)"));
  return run(box) == QMessageBox::Yes;
}

}  // namespace tavoli
