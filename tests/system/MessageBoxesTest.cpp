#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include "system/screens/MessageBoxes.h"

namespace tavoli {
namespace {

TEST(MessageBoxesTest, NoBoxShowsTheCursorOfWhatWaitsForIt) {
  bool waiting = true;
  QTimer::singleShot(0, qApp, [&waiting] {
    waiting = QApplication::overrideCursor() != nullptr;
    QApplication::activeModalWidget()->close();
  });
  QApplication::setOverrideCursor(Qt::WaitCursor);
  MessageBoxes().show(QStringLiteral("text"));
  EXPECT_FALSE(waiting);
  ASSERT_TRUE(QApplication::overrideCursor());
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor) << "it goes on waiting";
  QApplication::restoreOverrideCursor();
}

}  // namespace
}  // namespace tavoli
