#include <QApplication>
#include <QChartView>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "progress/screens/BarChartDrawing.h"
#include "progress/screens/TAVOstate.h"
#include "tests/support/FakePaper.h"
#include "tests/support/Fakes.h"
#include "tests/support/Print.h"
#include "tests/support/TestStore.h"

namespace tavoli {
namespace {

class TAVOstateTest : public testing::Test {
 protected:
  TAVOstateTest() {
    store.addWord(tableJTDIC, QStringLiteral("a"), QString(), MemoryState::うろ覚え);
    store.addWord(QStringLiteral("BusinessTOEIC"), QStringLiteral("a"), QString(),
                  MemoryState::完全);
    store.addSentence(QStringLiteral("600000"), QString());
    dbFileWork = store.path();
    counters.記憶単熟[中学] = {7, 8, 9};
  }

  void open(Course COURSE) {
    window = std::make_unique<TAVOstate>(
        ProgressSources{userId, dbFileWork, COURSE, specialTable, counters, clock, dialogs, paper});
    QObject::connect(window.get(), &TAVOstate::next, [this] { ++next; });
    QObject::connect(window.get(), &TAVOstate::left, [this] { ++left; });
    window->choosePdf = [this] { return pdf; };
    window->show();
    QApplication::setActiveWindow(window.get());
  }
  void choose(const char* action) { window->findChild<QAction*>(QLatin1String(action))->trigger(); }
  int tab() const { return window->findChild<QTabWidget*>()->currentIndex(); }
  QString cell(const char* grid, int row, int column) const {
    return window->findChild<QTableWidget*>(QLatin1String(grid))->item(row, column)->text();
  }

  test::TestStore store;
  QString userId = QStringLiteral("花子");
  QString dbFileWork;
  QString specialTable;
  ProgressCounters counters;
  test::FakeClock clock;
  test::ScriptedDialogs dialogs;
  test::FakePaper paper;
  QString pdf = store.folder() + QStringLiteral("/report.pdf");
  std::unique_ptr<TAVOstate> window;
  int next = 0;
  int left = 0;
};

TEST_F(TAVOstateTest, BeginsWithTheCourseAndGoesOnByEnter) {
  for (const int course : {0, 1, 2}) {
    open(codeAt<Course>(course));
    EXPECT_EQ(tab(), course);
  }
  EXPECT_EQ(window->focusWidget()->objectName(), QStringLiteral("Command1"));
  EXPECT_EQ(window->findChildren<QChartView*>().size(), 6) << "others are drawn when they are seen";
  QTest::keyClick(window->focusWidget(), Qt::Key_Return);
  EXPECT_EQ(next, 1);
  window->close();
  EXPECT_EQ(left, 0) << "it goes on with the next window";

  open(Course::中学);
  QTest::mouseClick(window->findChild<QPushButton*>(QStringLiteral("Command2")), Qt::LeftButton);
  EXPECT_EQ(left, 1);
}

TEST_F(TAVOstateTest, SurveysATableOnYes) {
  open(Course::中学);
  dialogs.answers = {false};
  choose("menu11");
  EXPECT_EQ(dialogs.asked, QStringList{QStringLiteral("調査・更新をしますか？")});
  EXPECT_EQ(counters.記憶単熟[中学], (Three{7, 8, 9}));
  EXPECT_EQ(tab(), 0);

  choose("menu11");
  EXPECT_EQ(counters.記憶単熟[中学], (Three{0, 1, 0}));
  EXPECT_EQ(dialogs.shown.size(), 1);
  EXPECT_EQ(tab(), 3);
  EXPECT_EQ(cell("MSFlexGrid1", 1, 2), QStringLiteral("1"));
  EXPECT_TRUE(window->isEnabled());
  EXPECT_FALSE(QApplication::overrideCursor());

  choose("menu14");
  EXPECT_EQ(counters.記憶文[高校], (Three{0, 0, 1}));
  EXPECT_EQ(cell("MSFlexGrid1", 5, 3), QStringLiteral("1")) << "drawn anew";
}

TEST_F(TAVOstateTest, ASpecialistDictionaryIsChosenFirst) {
  const auto answer = [&](const QString& key) {
    QTimer::singleShot(0, window.get(), [this, key] {
      auto* dialog = window->findChild<QDialog*>(QStringLiteral("TAVO9"));
      QTest::mouseClick(dialog->findChild<QPushButton*>(key), Qt::LeftButton);
    });
    choose("menu13");
  };
  open(Course::中学);
  answer(QStringLiteral("Command2"));
  EXPECT_TRUE(dialogs.asked.isEmpty());
  answer(QStringLiteral("Command1"));
  EXPECT_EQ(specialTable, QStringLiteral("BusinessTOEIC"));
  EXPECT_EQ(counters.記憶単熟[専門], (Three{1, 0, 0}));
  EXPECT_EQ(window->findChild<QLineEdit*>(QStringLiteral("Text1"))->text(), specialTable);

  specialTable = QStringLiteral("gone");
  answer(QStringLiteral("Command1"));
  EXPECT_TRUE(
      dialogs.shown.last().startsWith(QStringLiteral("専門単熟DB gone が見つかりません。")));
}

TEST_F(TAVOstateTest, AFailedSurveyKeepsTheFigures) {
  open(Course::中学);
  dbFileWork = store.folder() + QStringLiteral("/gone.mdb");
  choose("menu11");
  EXPECT_EQ(counters.記憶単熟[中学], (Three{7, 8, 9}));
  EXPECT_TRUE(dialogs.shown.value(0).startsWith(dbFileWork));
}

TEST_F(TAVOstateTest, PrintsOnePageOrWritesIt) {
  counters.時間[専門] = {3600, 0, 360000};
  specialTable = QStringLiteral("BusinessTOEIC");
  open(Course::専門);
  choose("menu2");
  QStringList printed;
  for (const auto& piece : paper.printed.pieces) printed.append(piece.text);
  for (const char16_t* part :
       {u"―― 2026/04/01 09:00:00―― UID=花子", u"記憶・ＤＢ別", u"BusinessTOEIC", u"100.00 時間"})
    EXPECT_TRUE(printed.contains(QString::fromUtf16(part))) << qPrintable(printed.join(u' '));
  EXPECT_EQ(paper.printed.pages, 1);
  EXPECT_TRUE(dialogs.shown.isEmpty());

  paper.prints = false;
  choose("menu2");
  EXPECT_EQ(paper.pdfPath, pdf);
  EXPECT_EQ(dialogs.shown, QStringList{QStringLiteral("%1 に保存しました。").arg(pdf)});
  pdf.clear();
  choose("menu2");
  EXPECT_EQ(dialogs.shown.size(), 1) << "thought better of it";
}

TEST_F(TAVOstateTest, APdfGetsItsEnding) {
  TAVOstate plain(
      {userId, dbFileWork, Course::中学, specialTable, counters, clock, dialogs, paper});
  QTimer::singleShot(0, &plain, [this] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    dialog->setDirectory(store.folder());
    dialog->selectFile(QStringLiteral("report"));
    QMetaObject::invokeMethod(dialog, "accept");
  });
  EXPECT_EQ(plain.choosePdf(), pdf);
}

TEST(ProgressDrawingTest, AxesAreWholeAndHaveRoom) {
  for (const double largest : {0.0, 0.4, 1.0, 4.0, 63.0, 100.0, 17000.0, 99999.0}) {
    const WholeAxis axis = wholeAxis(largest);
    EXPECT_GE(axis.top, largest * 1.15);
    EXPECT_LE(axis.top, std::max(1.0, largest * 2.5)) << largest;
    EXPECT_EQ(axis.top % axis.step, 0) << largest;
    EXPECT_LE(axis.top / axis.step, 5) << largest;
  }
}

}  // namespace
}  // namespace tavoli
