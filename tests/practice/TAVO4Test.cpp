#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include "practice/screens/TAVO4.h"
#include "practice/screens/TimeStrip.h"
#include "tests/support/AnswerWindow.h"
#include "tests/support/Print.h"
#include "tests/support/RecordingScreen.h"

namespace tavoli {
namespace {

/// The review of a word and a sentence.
class TAVO4Test : public test::AnswerWindow<TAVO4> {
 protected:
  TAVO4Test() {
    add(QStringLiteral("big"), TableCode::first, test::wordRecord({QStringLiteral("大きい")}));
    add(QStringLiteral("000010"), TableCode::sentences,
        test::sentenceRecord(QStringLiteral("[彼]は学生です。％He (   ) a {student}."),
                             {QStringLiteral("is")}));
    conditions.reviewCycle = 0;
    store.addWord(tableJTDIC, QStringLiteral("bug"), test::wordRecord({QStringLiteral("虫")}));
    window.addLookUp(QStringLiteral("中学DB"), dictionary);
    window.connectTo(loop);
    QObject::connect(&window, &TAVO4::begun, &window, &QWidget::show);
    QObject::connect(&window, &TAVO4::over, [this] {
      ++over;
      window.hide();
    });
    loop.start(2);
    loop.startReview({1, 2});
    QApplication::setActiveWindow(&window);
  }

  test::RecordingScreen practice;
  PracticeLoop loop{set, course, conditions, times,
                    LoopServices{practice, window, dialogs, random, clock, speaker}};
  int over = 0;
};

TEST_F(TAVO4Test, ReviewsWithTheKeyboardAlone) {
  EXPECT_EQ(QApplication::focusWidget(), answer);
  type(QStringLiteral("bug"));
  EXPECT_EQ(fullAnswer->toPlainText(), QStringLiteral("bug は正解ではありません。"));
  EXPECT_TRUE(find<MarkedView>(u"RichTextBox3(0)")->toPlainText().contains(u'虫'));
  press(Qt::Key_F1);
  QTest::keyClick(answer, '~');
  EXPECT_EQ(answer->text(), QStringLiteral("～"));
  EXPECT_EQ(message->text(), QString()) << "any key empties the message";
  answer->clear();
  type(QStringLiteral("big"));
  type(QStringLiteral("big"));
  EXPECT_EQ(fullAnswer->toPlainText(), QStringLiteral("big\n大きい  "));
  EXPECT_TRUE(answer->isReadOnly());
  EXPECT_FALSE(find<QPushButton>(u"Command1(0)")->isEnabled());
  press(Qt::Key_X);
  EXPECT_FALSE(fullAnswer->toPlainText().isEmpty()) << "the full answer waits for Enter";
  press(Qt::Key_Enter);
  EXPECT_EQ(question->toPlainText(), QStringLiteral("彼は学生です。\nHe (   ) a student."));
  EXPECT_TRUE(find<QPushButton>(u"Command1(0)")->isEnabled());
  press(Qt::Key_F2);
  EXPECT_EQ(loop.review().reviewPOS(), 2) << "not a key of the review";
  clock.time = clock.time.addSecs(5);
  loop.review().tick();
  EXPECT_EQ(find<TimeStrip>(u"Picture1")->text(), QStringLiteral("5"));
  type(QStringLiteral("is"));
  EXPECT_EQ(question->toPlainText(), QStringLiteral("彼は学生です。\nHe (is) a student."));
  QTest::mouseClick(answer, Qt::LeftButton);
  EXPECT_EQ(over, 1) << "a click into the answer box goes on too";
  EXPECT_EQ(practice.question, QStringLiteral("大きい"));
}

TEST_F(TAVO4Test, ClosingAsksAndEndsTheRun) {
  dialogs.answers = {false, true};
  window.close();
  EXPECT_TRUE(window.isVisible());
  QTest::mouseClick(find<QPushButton>(u"Command1(10)"), Qt::LeftButton);
  EXPECT_EQ(loop.review().reviewPOS(), 2);
  press(Qt::Key_F6);
  EXPECT_EQ(dialogs.asked, QStringList(2, QStringLiteral("終了しますか？")));
  EXPECT_TRUE(practice.closed);
  press(Qt::Key_F11);
  EXPECT_EQ(over, 0) << "nothing is asked any more";
}

TEST_F(TAVO4Test, SetsTheRetypingsInADialog) {
  QTimer::singleShot(0, &window, [] {
    QWidget* dialog = QApplication::activeModalWidget();
    QTest::keyClick(dialog->focusWidget(), Qt::Key_5);
    QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("Command3")), Qt::LeftButton);
  });
  find<QAction>(u"menu1")->trigger();
  EXPECT_EQ(loop.conditions().requiredRepeatWord, 5);
}

}  // namespace
}  // namespace tavoli
