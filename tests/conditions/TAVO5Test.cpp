#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include "conditions/screens/TAVO5.h"
#include "tests/support/Print.h"

namespace tavoli {
namespace {

/// The dialog, filled by the keyboard and the mouse as a learner does it.
class TAVO5Test : public testing::Test {
 protected:
  TAVO5Test() {
    conditions.firstRepeatWord = 4;
    conditions.firstRepeatSent = 3;
    open();
  }

  void open() {
    dialog = std::make_unique<TAVO5>(conditions);
    dialog->show();
  }
  QLineEdit* box(int number) {
    return dialog->findChild<QLineEdit*>(QStringLiteral("Text%1").arg(number));
  }
  void type(int number, const QString& text) {
    box(number)->selectAll();
    if (text.isEmpty()) QTest::keyClick(box(number), Qt::Key_Delete);
    QTest::keyClicks(box(number), text);
  }
  void press(int number) {
    QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("Command%1").arg(number)),
                      Qt::LeftButton);
  }

  PracticeConditions conditions;
  std::unique_ptr<TAVO5> dialog;
};

TEST_F(TAVO5Test, UndoesWhatLeavesTheRangeAtOnce) {
  QTest::keyClick(dialog->focusWidget(), Qt::Key_3);
  EXPECT_EQ(box(1)->text(), QStringLiteral("3")) << "the first key replaces the number";
  type(1, QStringLiteral("4"));
  for (const char16_t* entry : {u"6", u"0", u"a", u"-", u""}) {
    type(1, QString::fromUtf16(entry));
    EXPECT_EQ(box(1)->text(), QStringLiteral("4")) << qPrintable(QString::fromUtf16(entry));
  }
  type(1, QStringLiteral("5"));
  for (const char16_t* entry : {u"4", u""}) {
    type(2, QString::fromUtf16(entry));
    EXPECT_EQ(box(2)->text(), QStringLiteral("3"));
  }
}

TEST_F(TAVO5Test, StoresWithOkOnly) {
  type(1, QStringLiteral("1"));
  press(2);
  press(4);
  EXPECT_EQ(conditions.firstRepeatWord, 4);
  EXPECT_EQ(conditions.firstRepeatSent, 3);

  open();
  press(1);
  EXPECT_EQ(box(1)->text(), QStringLiteral("2")) << "the standard value";
  EXPECT_EQ(box(2)->text(), QStringLiteral("3")) << "has a button of its own";
  type(2, QStringLiteral("2"));
  press(3);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(conditions.firstRepeatWord, 2);
  EXPECT_EQ(conditions.firstRepeatSent, 2);
}

}  // namespace
}  // namespace tavoli
