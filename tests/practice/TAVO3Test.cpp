#include <QGroupBox>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>

#include <gtest/gtest.h>

#include "practice/screens/TAVO3.h"
#include "tests/support/AnswerWindow.h"
#include "tests/support/Print.h"
#include "tests/support/RecordingScreen.h"

namespace tavoli {
namespace {

/// The practice of a sentence and two words.
class TAVO3Test : public test::AnswerWindow<TAVO3> {
 protected:
  TAVO3Test() {
    add(QStringLiteral("000120"), TableCode::sentences,
        test::sentenceRecord(
            QStringLiteral("空所を補いなさい。％[彼]は学生です。％He (   ) a {student}."),
            {QStringLiteral("is")}));
    add(QStringLiteral("apple"), TableCode::first, test::wordRecord({QStringLiteral("りんご")}));
    add(QStringLiteral("book"), TableCode::first, test::wordRecord({QStringLiteral("本")}));
    conditions.firstRepeatWord = 1;
    store.addWord(tableJTDIC, QStringLiteral("student"),
                  test::wordRecord({QStringLiteral("学生")}));
    window.addLookUp(QStringLiteral("中学DB"), dictionary);
    window.addLookUp(QStringLiteral("BusinessTOEIC"), dictionary);
    loop = std::make_unique<PracticeLoop>(
        set, course, conditions, times,
        LoopServices{window, review, dialogs, random, clock, speaker});
    window.connectTo(*loop, clock);
    QObject::connect(&window, &TAVO3::closed, [this] { ++closed; });
    loop->start(2);
    window.show();
    QApplication::setActiveWindow(&window);
  }

  test::RecordingReview review;
  std::unique_ptr<PracticeLoop> loop;
  int closed = 0;
};

TEST_F(TAVO3Test, DrillsWithTheKeyboardAlone) {
  EXPECT_EQ(QApplication::focusWidget(), answer);
  EXPECT_EQ(window.windowTitle(), QStringLiteral("単語熟語　順に - Tavoli"));
  for (const auto& [panel, text] :
       {std::pair(1, u"復習は3問ごとに"), std::pair(2, u"位置=1／3 000120"),
        std::pair(4, u"開始時刻　09:00"), std::pair(7, u"練習回数 = 0")})
    EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("StatusBar1.Panel%1").arg(panel))->text(),
              QString::fromUtf16(text));
  EXPECT_TRUE(question->toPlainText().contains(QStringLiteral("彼は学生です。\nHe (   )")));
  type(QStringLiteral("is"));
  EXPECT_EQ(QApplication::focusWidget(), fullAnswer) << "the full answer waits for Enter";
  EXPECT_TRUE(answer->isReadOnly());
  press(Qt::Key_Down);
  press(Qt::Key_F2);
  press(Qt::Key_F11);
  EXPECT_EQ(loop->POS(), 1) << "these keys do nothing while the answer is on show";
  press(Qt::Key_Enter);
  EXPECT_EQ(loop->POS(), 2);
  EXPECT_EQ(QApplication::focusWidget(), answer);

  EXPECT_EQ(question->toPlainText(), QStringLiteral("りんご"));
  type(QStringLiteral("aple"));
  EXPECT_EQ(fullAnswer->toPlainText(), QStringLiteral("aple は正解ではありません。"));
  EXPECT_EQ(answer->text(), QString());
  window.showMessage(plainText(QStringLiteral("前の回答")));
  QTest::keyClick(answer, Qt::Key_Left);
  EXPECT_EQ(message->text(), QString()) << "any key empties the message";
  type(QStringLiteral("apple"));
  EXPECT_TRUE(message->text().startsWith(QStringLiteral("○　正解です。")));
  QTest::mouseClick(answer, Qt::LeftButton);
  EXPECT_EQ(loop->POS(), 3) << "a click into the answer box goes on too";
  for (const auto& [key, POS] : {std::pair(Qt::Key_F4, 2), std::pair(Qt::Key_F3, 3)}) {
    window.showMessage(plainText(QStringLiteral("前の回答")));
    press(key);
    EXPECT_EQ(loop->POS(), POS);
    EXPECT_EQ(message->text(), QString()) << "what was told goes with its item";
  }

  dialogs.asked.clear();
  dialogs.answers = {false, false, true};
  window.QWidget::close();
  EXPECT_TRUE(window.isVisible()) << "closing asks, and was refused";
  press(Qt::Key_F6);
  QTest::mouseClick(find<QPushButton>(u"Command1(5)"), Qt::LeftButton);
  EXPECT_EQ(dialogs.asked, QStringList(3, QStringLiteral("終了しますか？")));
  QApplication::processEvents();
  EXPECT_EQ(closed, 1);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(TAVO3Test, TellsWhichBlankIsAskedAndReadersWhatBecameOfIt) {
  add(QStringLiteral("000140"), TableCode::sentences,
      test::sentenceRecord(QStringLiteral("This (   ) (   ) my bag."),
                           {QStringLiteral("is"), QStringLiteral("not")}));
  const auto isBold = [this](int position) {
    QTextCursor at(question->document());
    at.setPosition(position);
    return at.charFormat().fontWeight() == QFont::Bold;
  };
  press(Qt::Key_F4);
  EXPECT_TRUE(isBold(8) && !isBold(13));
  EXPECT_EQ(answer->placeholderText(), QStringLiteral("小問 1／2"));
  type(QStringLiteral("is"));
  EXPECT_EQ(question->toPlainText(), QStringLiteral("This (is) (   ) my bag."));
  EXPECT_TRUE(!isBold(8) && isBold(13));
  QApplication::processEvents();
  QTest::keyClick(answer, Qt::Key_N);
  QApplication::processEvents();
  const QString told = answer->accessibleDescription();
  EXPECT_TRUE(told.startsWith(QStringLiteral("This (is) (   ) my bag.\n小問 2／2\n○　正解です")))
      << qPrintable(told);
  type(QStringLiteral("ot"));
  QApplication::processEvents();
  EXPECT_TRUE(answer->accessibleDescription().contains(fullAnswer->toPlainText()));
  EXPECT_EQ(question->toPlainText(), QStringLiteral("This (is) (not) my bag."));
  EXPECT_FALSE(isBold(13));
  press(Qt::Key_F4);
  press(Qt::Key_F3);
  EXPECT_EQ(question->toPlainText(), QStringLiteral("This (   ) (   ) my bag."));
}

TEST_F(TAVO3Test, LeavesTheKeysToAReview) {
  loop->startReview({2});
  type(QStringLiteral("is"));
  press(Qt::Key_F3);
  EXPECT_EQ(loop->POS(), 1) << "what was typed on in haste judges nothing unseen";
  EXPECT_FALSE(loop->確認中());
  loop->review().enter(QStringLiteral("apple"));
  loop->review().enter(QString());
  // The F11 that ended the review, pressed once more or held, is not meant for the next item.
  window.resumeFromReview();
  clock.time = clock.time.addMSecs(699);
  press(Qt::Key_F11);
  clock.time = clock.time.addMSecs(1);
  answer->setText(QStringLiteral("is"));
  for (const auto key : {Qt::Key_F11, Qt::Key_F3, Qt::Key_Return}) {
    QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(answer, &held);
  }
  EXPECT_FALSE(loop->確認中());
  EXPECT_EQ(loop->POS(), 1);
  press(Qt::Key_F11);
  EXPECT_TRUE(loop->確認中());
  press(Qt::Key_F4);
  press(Qt::Key_F9);
  EXPECT_EQ(loop->printRequests().items().size(), 1);
}

TEST_F(TAVO3Test, ClicksSelectNothingInASentenceToCorrect) {
  add(QStringLiteral("000130"), TableCode::sentences,
      test::sentenceRecord(QStringLiteral("次の英文に誤りがあれば訂正しなさい。％He are a boy."),
                           {QStringLiteral("He is a boy.")}));
  press(Qt::Key_F4);
  ASSERT_EQ(answer->text(), QStringLiteral("He are a boy."));
  const QPoint word(answer->fontMetrics().horizontalAdvance(QStringLiteral("He a")), 12);
  QTest::mouseDClick(answer, Qt::LeftButton, {}, word);
  QTest::mouseRelease(answer, Qt::LeftButton, {}, word);
  EXPECT_FALSE(answer->hasSelectedText());
  EXPECT_EQ(answer->text(), QStringLiteral("He are a boy."));
}

TEST_F(TAVO3Test, LooksAClickedWordUpInAllPanes) {
  window.resize(window.minimumSizeHint());
  QApplication::processEvents();
  EXPECT_FALSE(find<QLineEdit>(u"Text3(0)")->isVisible()) << "a low window keeps to the question";
  QTextCursor at(question->document());
  at.setPosition(static_cast<int>(question->toPlainText().indexOf(QStringLiteral("student"))) + 2);
  const QPoint point = question->cursorRect(at).center();
  QTest::mouseClick(question->viewport(), Qt::LeftButton, {}, point);
  for (const char16_t* box : {u"Text3(0)", u"Text3(1)"})
    EXPECT_TRUE(find<QLineEdit>(box)->isVisible() &&
                find<QLineEdit>(box)->text() == QStringLiteral("student"));
  EXPECT_TRUE(find<MarkedView>(u"RichTextBox3(0)")->toPlainText().contains(QStringLiteral("学生")));
  EXPECT_EQ(QApplication::focusWidget(), answer) << "the caret stays with the answer";
}

TEST_F(TAVO3Test, ShowsTheNewestLinesOfTheLogAndAnyOtherByItsScrollBar) {
  QStringList lines;
  for (int i = 1; i <= 200; ++i) lines.append(QStringLiteral("行%1").arg(i));
  window.resize(800, 600);
  window.showLog(lines, true);
  QApplication::processEvents();
  auto* log = find<MarkedView>(u"RichTextBox1");
  const auto lineAt = [&](int y) { return log->cursorForPosition({5, y}).block().text(); };
  EXPECT_EQ(lineAt(log->viewport()->height() - 2), QStringLiteral("行200"));
  find<QScrollBar>(u"VScroll1")->setValue(50);
  EXPECT_EQ(lineAt(4), QStringLiteral("行51"));
  window.showLog(lines, false);
  EXPECT_FALSE(log->isVisible());
}

TEST_F(TAVO3Test, MenusReachTheRunAndItsConditions) {
  find<QAction>(u"menu42")->trigger();
  EXPECT_EQ(loop->conditions().compareMode, CompareMode::caseMatters);
  QTest::mouseClick(find<QLabel>(u"StatusBar1.Panel3"), Qt::LeftButton);
  EXPECT_TRUE(find<QAction>(u"menu43")->isChecked());
  find<QAction>(u"menuTimeUp2")->trigger();
  EXPECT_EQ(loop->timeUpSound(), 1);
  find<QAction>(u"menu_DispKaisuu")->trigger();
  EXPECT_TRUE(find<QGroupBox>(u"Frame1")->isVisible());
}

TEST_F(TAVO3Test, PopUpMenuWorksOnTheClipboard) {
  const auto open = [](QWidget* text) { Q_EMIT text->customContextMenuRequested({2, 2}); };
  question->moveCursor(QTextCursor::EndOfLine, QTextCursor::KeepAnchor);
  open(question);
  EXPECT_FALSE(find<QAction>(u"popMenu11")->isEnabled());
  find<QAction>(u"popMenu12")->trigger();
  open(answer);
  find<QAction>(u"popMenu13")->trigger();
  EXPECT_EQ(answer->text(), question->textCursor().selectedText());
  find<QMenu>(u"popMenu1")->hide();
}

}  // namespace
}  // namespace tavoli
