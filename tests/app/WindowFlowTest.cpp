#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "app/Module1.h"
#include "app/screens/WindowFlow.h"
#include "tests/support/Print.h"
#include "tests/support/TestStore.h"

namespace tavoli {
namespace {

/// What a learner does in a window when it is there.
struct Step {
  QWidget* (*window)();
  std::function<void(QWidget&)> act;
};

template <class Window>
QWidget* shown() {
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (dynamic_cast<Window*>(widget) && widget->isVisible()) return widget;
  return nullptr;
}

template <class Window>
Step click(const char* button) {
  return {&shown<Window>,
          [=](QWidget& window) { window.findChild<QPushButton*>(QLatin1String(button))->click(); }};
}

Step logIn() {
  return {&shown<TAVO1>, [](QWidget& window) {
            window.findChild<QLineEdit*>(QStringLiteral("Text1"))->setText(QStringLiteral("000"));
            window.findChild<QPushButton*>(QStringLiteral("Command2"))->click();
          }};
}

/// Runs the program with a learner who takes these steps and agrees to every box; returns the texts
/// of the boxes.
QStringList runProgram(Module1& module, QList<Step> steps) {
  QStringList boxes;
  WindowFlow flow(module, QStringLiteral("1.0.0"));
  QTimer hand;
  int patience = 2000;
  QObject::connect(&hand, &QTimer::timeout, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (--patience < 0) {
      if (box) box->reject();
      QApplication::exit(1);
    } else if (box) {
      boxes.append(box->text());
      const bool question = box->standardButtons().testFlag(QMessageBox::Yes);
      box->button(question ? QMessageBox::Yes : QMessageBox::Ok)->click();
    } else if (QWidget* window = steps.isEmpty() ? nullptr : steps.first().window()) {
      // A timer does not fire while its own slot runs, and a box waits in there.
      QTimer::singleShot(0, window, [window, act = steps.takeFirst().act] { act(*window); });
    }
  });
  hand.start(1);
  EXPECT_EQ(flow.run(), 0) << "a window did not come";
  EXPECT_EQ(steps.size(), 0);
  return boxes;
}

TEST(WindowFlowTest, ARunThatDidNotGetHomeIsThereAtTheNextLogin) {
  const QTemporaryDir folder;
  const QString placed = folder.filePath(QStringLiteral("placed"));
  const QString away = folder.filePath(QStringLiteral("away"));
  SystemFiles files;
  const SystemClock clock;
  QDir().mkpath(placed);
  test::TestStore store;
  for (const char16_t* word : {u"apple", u"book", u"cup"})
    store.addWord(tableSTDIC, QString::fromUtf16(word), test::wordRecord({QStringLiteral("意")}));
  store.close();
  EXPECT_EQ(files.copy(store.path(), placed + QStringLiteral("/TavoDB000.mdb")), FileResult::Ok);
  EXPECT_EQ(files.write(folder.filePath(QStringLiteral("TavoAlloc.txt")), placed.toUtf8()),
            FileResult::Ok);

  Module1 module = startModule1(files, clock, folder.path());
  const Step practise = {&shown<TAVO3>, [&](QWidget& tavo3) {
                           EXPECT_TRUE(QDir().rename(placed, away));
                           QTest::keyClick(&tavo3, Qt::Key_F7);
                         }};
  QStringList boxes =
      runProgram(module, {logIn(), click<TAVOstate>("Command1"), click<TAVO2>("Command1"), practise,
                          click<TAVO2>("Command5")});
  EXPECT_TRUE(
      boxes.last().startsWith(QStringLiteral("練習結果を配置場所に戻せなかったので、この機械の ")))
      << qPrintable(boxes.join(u'/'));
  EXPECT_TRUE(files.exists(module.learner.historyFileWork));
  ASSERT_TRUE(QDir().rename(away, placed));

  module = startModule1(files, clock, folder.path());
  boxes = runProgram(module, {logIn(), click<TAVOstate>("Command1"), click<TAVO2>("Command5")});
  EXPECT_EQ(files.read(module.learner.dbFilePlaced), files.read(module.learner.dbFileWork))
      << "the conditions that were made have got home";
  const QDir data(module.dbPathDefault);
  const QStringList kept = data.entryList({QStringLiteral("TavoDB000.mdb-2*")}, QDir::Files);
  ASSERT_EQ(kept.size(), 1);
  EXPECT_EQ(
      boxes,
      QStringList{QStringLiteral("配置場所に戻されていない学習結果があったので %1 に保存しました。")
                      .arg(data.filePath(kept.first()))});
  std::optional<Database> run = peekDatabase(data.filePath(kept.first()));
  const auto rows = run->OpenRecordset(tableBDIC);
  rows->Seek(SeekOp::Equal, rowAutoPlay);
  EXPECT_FALSE(rows->NoMatch());
}

}  // namespace
}  // namespace tavoli
