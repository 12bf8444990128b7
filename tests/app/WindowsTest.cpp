#include <QApplication>
#include <QDialog>

#include <gtest/gtest.h>

#include "app/Module1.h"
#include "app/screens/ProgramIcon.h"
#include "app/screens/TAVO1.h"
#include "app/screens/TAVO11.h"
#include "conditions/screens/TAVO2.h"
#include "conditions/screens/TAVO5.h"
#include "conditions/screens/TAVO6.h"
#include "lookup/LookUp.h"
#include "practice/screens/FunctionKeys.h"
#include "practice/screens/TAVO3.h"
#include "practice/screens/TAVO4.h"
#include "progress/screens/TAVOstate.h"
#include "system/Files.h"
#include "system/screens/ChoiceDialog.h"
#include "tests/support/Accessible.h"
#include "tests/support/FakePaper.h"
#include "tests/support/Fakes.h"
#include "tests/support/TestStore.h"

namespace tavoli {
namespace {

/// A screen of 800 x 600 at the largest type that is supported, 144 to the inch, has room for so
/// many pixels of a window without its frame.
constexpr QSize smallest(533, 376);

TEST(Windows, FitSmallScreensBearTheProgramsNameAndNameTheirControls) {
  QFont type = QApplication::font();
  type.setPointSizeF(11);
  QApplication::setFont(type);
  EXPECT_FALSE(programIcon().pixmap(16, 16).isNull());

  test::TestStore store;
  store.close();
  SystemFiles files;
  test::FakeClock clock;
  test::ScriptedDialogs dialogs;
  test::FakePaper paper;
  Module1 module = startModule1(files, clock, store.folder());
  module.learner.dbFileWork = store.path();
  ProgressSources sources{module.learner.userId,
                          module.learner.dbFileWork,
                          Course::高校,
                          module.course.specialTable,
                          module.progress,
                          clock,
                          dialogs,
                          paper};

  TAVO1 tavo1(module, files, dialogs, QStringLiteral("1.2.3"));
  TAVOstate state(sources);
  ConditionsRules rules(module.learner, module.course, module.conditions,
                        {files, dialogs, store.folder(), {}});
  TAVO2 tavo2(rules);
  ASSERT_TRUE(rules.enter(tavo2));
  auto rows = (store.open(), store.database().OpenRecordset(tableJTDIC));
  LookUp dictionary(*rows);
  TAVO3 tavo3;
  TAVO4 tavo4;
  for (const char16_t* heading : {u"BusinessTOEIC", u"高校DB", u"中学DB"})
    tavo3.addLookUp(QString::fromUtf16(heading), dictionary);
  tavo4.addLookUp(QStringLiteral("中学DB"), dictionary);
  tavo3.showCaption(QStringLiteral("例文"));
  tavo3.showSource(QStringLiteral("問題　BusinessTOEIC"));
  for (int panel = 1; panel <= 8; ++panel)
    tavo3.showStatus(static_cast<StatusPanel>(panel), QString(60, u'練'));
  TAVO5 tavo5(module.conditions);
  TAVO6 tavo6(module.conditions);
  ChoiceDialog tavo8({QStringLiteral("専門ＤＢの指定"),
                      QStringLiteral("専門ＤＢを選択して下さい。"),
                      {QString(25, u'W')},
                      {}});
  TAVO11 tavo11(module, files, dialogs, &tavo1);
  for (QWidget* window : std::initializer_list<QWidget*>{&tavo1, &state, &tavo2, &tavo3, &tavo4,
                                                         &tavo5, &tavo6, &tavo8, &tavo11}) {
    SCOPED_TRACE(qPrintable(window->windowTitle()));
    window->show();
    QApplication::processEvents();
    const QSize least = window->minimumSizeHint().expandedTo(window->minimumSize());
    EXPECT_LE(least.width(), smallest.width());
    EXPECT_LE(least.height(), smallest.height());
    EXPECT_TRUE(window->windowTitle().contains(QStringLiteral("Tavoli")));
    EXPECT_GT(test::expectNames(*window), 3);
    window->resize(smallest);
    QApplication::processEvents();
    for (const auto* keys : window->findChildren<FunctionKeys*>()) {
      QRegion covered;
      for (const auto* button : keys->findChildren<QPushButton*>()) {
        const QRect place(button->mapTo(keys, QPoint()), button->size());
        EXPECT_TRUE(keys->rect().contains(place) && !covered.intersects(place))
            << qPrintable(button->text());
        covered += place;
      }
    }
    window->hide();
  }
}

}  // namespace
}  // namespace tavoli
