#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

#include "practice/PracticeLoop.h"
#include "practice/screens/TAVO3.h"
#include "tests/support/Fakes.h"
#include "tests/support/Print.h"
#include "tests/support/TestStore.h"

namespace tavoli {
namespace {

TEST(TAVO3Test, DrillsWithTheKeyboardAlone) {
  PracticeSet set;
  for (const char16_t* word : {u"apple", u"book"}) {
    PracticeItem item;
    item.itemEnglish = QString::fromUtf16(word);
    item.itemTable = u'1';
    item.itemRecord = test::wordRecord({QStringLiteral("[意味]")});
    set.append(item);
  }
  const CourseChoice course;
  PracticeConditions conditions;
  conditions.firstRepeatWord = 1;
  test::ScriptedDialogs dialogs;
  test::FakeRandom random;
  TAVO3 window({QStringLiteral("STDIC"), QStringLiteral("JTDIC")});
  PracticeLoop loop(set, course, conditions, window, dialogs, random);
  int closed = 0;
  window.connectTo(loop, [&] { ++closed; });
  loop.start();
  window.show();
  QApplication::setActiveWindow(&window);

  const auto press = [](auto key) { QTest::keyClick(QApplication::focusWidget(), key); };
  auto* answer = window.findChild<QLineEdit*>(QStringLiteral("Text2"));
  auto* fullAnswer = window.findChild<MarkedView*>(QStringLiteral("RichTextBox2"));
  EXPECT_EQ(QApplication::focusWidget(), answer);
  EXPECT_EQ(window.findChild<MarkedView*>(QStringLiteral("RichTextBox4"))->toPlainText(),
            QStringLiteral("意味"));
  QTest::keyClicks(answer, QStringLiteral("aple"));
  press(Qt::Key_Return);
  EXPECT_EQ(fullAnswer->toPlainText(), QStringLiteral("aple は正解ではありません。"));
  EXPECT_EQ(answer->text(), QString());
  QTest::keyClicks(answer, QStringLiteral("apple"));
  press(Qt::Key_Return);
  EXPECT_TRUE(window.findChild<QLabel*>(QStringLiteral("RichTextBox5"))
                  ->text()
                  .startsWith(QStringLiteral("○　正解です。")));
  EXPECT_EQ(QApplication::focusWidget(), fullAnswer) << "the full answer waits for Enter";
  press(Qt::Key_Enter);
  EXPECT_EQ(loop.POS(), 2);
  EXPECT_EQ(QApplication::focusWidget(), answer);

  dialogs.answers = {false, false, true};
  window.QWidget::close();
  EXPECT_TRUE(window.isVisible()) << "closing asks, and was refused";
  press(Qt::Key_F6);
  QTest::mouseClick(window.findChild<QPushButton*>(QStringLiteral("Command1(5)")), Qt::LeftButton);
  EXPECT_EQ(dialogs.asked, QStringList(3, QStringLiteral("終了しますか？")));
  QApplication::processEvents();
  EXPECT_EQ(closed, 1);
  EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace tavoli
