#include "system/screens/MessageBoxes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>

namespace tavoli {

void MessageBoxes::show(const QString& text) {
  QMessageBox box(QMessageBox::NoIcon, QStringLiteral("Tavoli"), text, QMessageBox::Ok,
                  QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

bool MessageBoxes::ask(const QString& text) {
  QMessageBox box(QMessageBox::Question, QStringLiteral("Tavoli"), text,
                  QMessageBox::Yes | QMessageBox::No, QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.button(QMessageBox::Yes)->setText(QStringLiteral("はい(&Y)"));
  box.button(QMessageBox::No)->setText(QStringLiteral("いいえ(&N)"));
  return box.exec() == QMessageBox::Yes;
}

}  // namespace tavoli
