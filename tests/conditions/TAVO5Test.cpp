#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include "conditions/screens/TAVO5.h"
#include "tests/support/Print.h"

namespace tavoli {
namespace {

QLineEdit* box(const QWidget& dialog, int number) {
  return dialog.findChild<QLineEdit*>(QStringLiteral("Text%1").arg(number));
}

void press(const QWidget& dialog, int number) {
  QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("Command%1").arg(number)),
                    Qt::LeftButton);
}

TEST(TAVO5Test, UndoesWhatLeavesTheRangeAtOnceAndStoresWithOkOnly) {
  PracticeConditions conditions;
  conditions.firstRepeatWord = 4;
  conditions.firstRepeatSent = 3;
  TAVO5 dialog(conditions);
  dialog.show();
  QTest::keyClick(dialog.focusWidget(), Qt::Key_3);
  EXPECT_EQ(box(dialog, 1)->text(), QStringLiteral("3")) << "the first key replaces the number";
  for (const auto& [number, most] : {std::pair(1, 5), std::pair(2, 3)}) {
    box(dialog, number)->selectAll();
    QTest::keyClick(box(dialog, number), static_cast<char>('0' + most));
    for (const char entry : {static_cast<char>('1' + most), '0', 'a', '-', '\b'}) {
      box(dialog, number)->selectAll();
      QTest::keyClick(box(dialog, number), entry);
      EXPECT_EQ(box(dialog, number)->text(), QString::number(most)) << entry;
    }
  }
  press(dialog, 4);
  EXPECT_EQ(conditions.firstRepeatWord, 4) << "cancelled";
  dialog.show();
  press(dialog, 1);
  EXPECT_EQ(box(dialog, 1)->text(), QStringLiteral("2")) << "the standard value";
  press(dialog, 3);
  EXPECT_EQ(conditions.firstRepeatWord, 2);
  EXPECT_EQ(conditions.firstRepeatSent, 3);
}

}  // namespace
}  // namespace tavoli
