#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <gtest/gtest.h>

#include "conditions/ConditionsStore.h"
#include "conditions/screens/TAVO2.h"
#include "system/Files.h"
#include "tests/support/Fakes.h"
#include "tests/support/Print.h"
#include "tests/support/TestStore.h"

namespace tavoli {
namespace {

/// The window over a store, driven by mouse and keyboard as a learner does it.
class TAVO2Test : public testing::Test {
 protected:
  TAVO2Test() {
    for (const char16_t* word : {u"apple", u"bank", u"go abroad"})
      store.addWord(tableJTDIC, QString::fromUtf16(word), QString());
    QDir(store.folder()).mkpath(QStringLiteral("lessons/verbs"));
    EXPECT_EQ(
        files.write(lessons + QStringLiteral("/verbs/動詞.TAV"), "*comment\nbank\ngo abroad\n"),
        FileResult::Ok);
    EXPECT_EQ(files.write(lessons + QStringLiteral("/verbs/other.doc"), "no lesson"),
              FileResult::Ok);
    store.close();
    QObject::connect(&window, &TAVO2::next, [this](const QString& key) { startKey = key; });
    QObject::connect(&window, &TAVO2::left, [this] { ++ends; });
    EXPECT_TRUE(rules.enter(window));
    window.show();
    window.activateWindow();
    QApplication::processEvents();
  }

  template <class Control>
  Control* control(const char* name) {
    return window.findChild<Control*>(QLatin1String(name));
  }
  void click(const char* name) {
    auto* widget = control<QWidget>(name);
    QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(8, widget->height() / 2));
  }
  void type(const char* name, const char* text) {
    const auto* combo = control<QComboBox>(name);
    QLineEdit* field = combo ? combo->lineEdit() : control<QLineEdit>(name);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QLatin1String(text));
  }
  void clickRow(QAbstractItemView* view, const QModelIndex& row) {
    ASSERT_TRUE(row.isValid());
    view->scrollTo(row);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(row).center());
  }

  test::TestStore store;
  const QString lessons = store.folder() + QStringLiteral("/lessons");
  SystemFiles files;
  test::ScriptedDialogs dialogs;
  LearnerFiles learner{QStringLiteral("taro"), {}, store.path(), {}, {}, {}, {}, {}, false};
  CourseChoice course;
  PracticeConditions conditions;
  ConditionsRules rules{learner, course, conditions, {files, dialogs, lessons, {}}};
  TAVO2 window{rules};
  QString startKey;
  int ends = 0;
};

TEST_F(TAVO2Test, EveryControlReachesTheRecord) {
  EXPECT_EQ(window.focusWidget(), control<QWidget>("Command1"));
  click("Option11(0)");
  click("Option5(3)");
  click("Option6(3)");
  type("Combo1", "bank");
  click("Option7(4)");
  for (const auto& [field, text] :
       {std::pair("Text6", "2"), std::pair("Text7", "12"), std::pair("Text8", "7"),
        std::pair("Text9", "99999"), std::pair("Text10", "1"), std::pair("Text11", "1.25"),
        std::pair("Text12", "33"), std::pair("Text13", "0.75"), std::pair("Text14", "44")})
    type(field, text);
  EXPECT_EQ(control<QLineEdit>("Text9")->text(), QStringLiteral("24990"));
  EXPECT_EQ(control<QLineEdit>("Text10")->text(), QStringLiteral("10")) << "when it was left";
  click("Command1");
  EXPECT_EQ(startKey, QStringLiteral("bank"));
  EXPECT_TRUE(dialogs.shown.isEmpty() && dialogs.asked.isEmpty());

  PracticeConditions expected = conditions;
  expected.selMethod = SelMethod::wordsAtRandom;
  expected.startMode = StartMode::named;
  expected.startEnglish = QStringLiteral("bank");
  expected.memorySelect = MemorySelect::完全とうろ覚え;
  expected.levelFrom = QStringLiteral("02");
  expected.levelTo = QStringLiteral("12");
  expected.reviewCycle = 7;
  expected.maxLoadWords = 24990;
  expected.maxLoadSent = 10;
  expected.targetSentA = 1.25;
  expected.targetSentB = 33;
  expected.targetWordA = 0.75;
  expected.targetWordB = 44;
  EXPECT_EQ(course.COURSE, Course::中学);
  EXPECT_EQ(encodeConditions(conditions), encodeConditions(expected));

  click("Command2");
  click("Command3");
  EXPECT_EQ(conditions.reviewCycle, 3) << "the standard values are back";
  EXPECT_EQ(control<QLineEdit>("Text13")->text(), QStringLiteral("0.5"));
}

TEST_F(TAVO2Test, ALessonIsPickedInTheFoldersAndPreviewed) {
  auto* dir1 = control<QTreeView>("Dir1");
  const QModelIndex here = dir1->currentIndex();
  EXPECT_EQ(here.data().toString(), QStringLiteral("lessons"));
  clickRow(dir1, dir1->model()->index(0, 0, here));
  auto* file1 = control<QListView>("File1");
  ASSERT_EQ(file1->model()->rowCount(), 1);
  EXPECT_FALSE(control<QWidget>("RichTextBox1")->isVisible());
  clickRow(file1, file1->model()->index(0, 0));
  EXPECT_EQ(conditions.lessonPath(), lessons + QStringLiteral("/verbs/動詞.TAV"));
  EXPECT_TRUE(control<QRadioButton>("Option5(0)")->isChecked());
  EXPECT_TRUE(control<QRadioButton>("Option6(1)")->isChecked());
  EXPECT_EQ(window.focusWidget(), control<QWidget>("Text2"));
  EXPECT_TRUE(control<QWidget>("RichTextBox1")->isVisible());
  EXPECT_EQ(control<QListView>("RichTextBox1")->model()->rowCount(), 3);

  window.showFolder(lessons + QStringLiteral("/gone"));
  EXPECT_EQ(dir1->currentIndex().data().toString(), QStringLiteral("verbs"));
  click("Command4");
  EXPECT_EQ(dir1->currentIndex().data().toString(), QStringLiteral("lessons"));
  click("Label6");
  EXPECT_EQ(conditions.selMethod, SelMethod::wordsInOrder);
  EXPECT_FALSE(control<QWidget>("Text2")->isEnabled());
  EXPECT_FALSE(control<QWidget>("RichTextBox1")->isVisible());
}

TEST_F(TAVO2Test, AMissingFolderLeavesAPickerToWorkWith) {
  QDir(lessons).removeRecursively();
  ConditionsRules anew(learner, course, conditions, {files, dialogs, lessons, {}});
  TAVO2 fresh(anew);
  EXPECT_TRUE(anew.enter(fresh));
  EXPECT_TRUE(fresh.findChild<QTreeView*>(QStringLiteral("Dir1"))->currentIndex().isValid());
}

TEST_F(TAVO2Test, TypingGoesToTheMatchingStart) {
  click("Option11(0)");
  EXPECT_FALSE(control<QWidget>("Combo1")->isEnabled());
  click("Option6(3)");
  auto* combo1 = control<QComboBox>("Combo1");
  EXPECT_EQ(combo1->currentText(), QStringLiteral("apple"));
  QTest::mouseClick(combo1->lineEdit(), Qt::LeftButton);
  QApplication::processEvents();
  QTest::keyClicks(combo1->lineEdit(), QStringLiteral("GO"));
  EXPECT_EQ(combo1->currentText().toLower(), QStringLiteral("go abroad"));
  QTest::keyClick(combo1, Qt::Key_Return);
  EXPECT_EQ(window.focusWidget(), combo1);
  EXPECT_EQ(combo1->count(), 4) << "nothing typed is added";
  click("Command1");
  EXPECT_EQ(startKey.toLower(), QStringLiteral("go abroad"));
  const QString longest(40, u'英');
  window.listStarts({QString(50, u'i'), longest, QStringLiteral("apple")});
  combo1->showPopup();
  EXPECT_GT(combo1->view()->width(), combo1->view()->fontMetrics().horizontalAdvance(longest));
}

TEST_F(TAVO2Test, ASpecialistDictionaryIsChosenInTAVO8) {
  const auto answer = [&](const char* button) {
    QTimer::singleShot(0, &window, [button] {
      QWidget* box = QApplication::activeModalWidget();
      EXPECT_EQ(box->objectName(), QStringLiteral("TAVO8"));
      QTest::mouseClick(box->findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
    });
  };
  answer("Command2");
  click("Option11(2)");
  EXPECT_TRUE(control<QRadioButton>("Option11(1)")->isChecked());
  answer("Command1");
  click("Text18");
  EXPECT_EQ(control<QLineEdit>("Text18")->text(), QStringLiteral("BusinessTOEIC"));
  EXPECT_TRUE(control<QRadioButton>("Option11(2)")->isChecked());
  EXPECT_EQ(course.specialTable, QStringLiteral("BusinessTOEIC"));
}

TEST_F(TAVO2Test, TheTabKeyFollowsTheReadingOrderByTheMarkedOptions) {
  click("Option5(0)");
  click("Option6(3)");
  QStringList names;
  control<QWidget>("Option11(1)")->setFocus();
  while (!names.contains(window.focusWidget()->objectName())) {
    names.append(window.focusWidget()->objectName());
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(names.join(u' '),
            QStringLiteral("Option11(1) Text18 Option5(0) Option6(3) Combo1 Option7(1) Text2 "
                           "Command4 Dir1 File1 RichTextBox1 UpDownText6 UpDownText7 UpDownText9 "
                           "UpDownText10 UpDownText8 Command3 UpDownText11 UpDownText12 "
                           "UpDownText13 UpDownText14 Command2 Combo2 Command1 Command5"));
}

TEST_F(TAVO2Test, ComesBackWithWhatWasChosen) {
  EXPECT_FALSE(control<QLabel>("Label14")->isVisible()) << "there was no word before the first run";
  const auto* file = control<QLabel>("Text1");
  EXPECT_FALSE(file->isVisible()) << "words were chosen last time";
  window.hide();
  conditions.selMethod = SelMethod::lessonInOrder;
  conditions.lessonFolder = lessons + QStringLiteral("/verbs");
  conditions.lessonFile = QStringLiteral("動詞.TAV");
  store.open();
  ASSERT_TRUE(saveConditions(*store.database().OpenRecordset(tableSTDIC), conditions));
  store.close();
  ASSERT_TRUE(rules.enter(window));
  window.show();
  QApplication::processEvents();
  EXPECT_EQ(file->text(), QStringLiteral("動詞.TAV"));
  EXPECT_TRUE(file->isVisible());
  EXPECT_GE(file->height(), file->fontMetrics().height());
  click("Command5");
  window.close();
  EXPECT_EQ(ends, 1) << "it is left once";
}

}  // namespace
}  // namespace tavoli
