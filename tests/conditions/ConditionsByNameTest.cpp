#include <QDir>

#include <gtest/gtest.h>

#include "conditions/ConditionsByName.h"
#include "tests/support/ConditionsOverStore.h"
#include "tests/support/Print.h"

namespace tavoli {
namespace {

using ConditionsByNameTest = test::ConditionsOverStore;
using LessonChoiceTest = test::ConditionsOverStore;

TEST_F(ConditionsByNameTest, NamesSetWhatTheScreenWouldSet) {
  const struct {
    const char* name;
    NamedValues values;
    QString complaint;  ///< its beginning
    QString record;     ///< selMethod, startMode, levels, reviewCycle, maxLoadWords
  } cases[] = {
      {"nothing", {}, {}, QStringLiteral("20 00-10 3 200")},
      {"another group",
       {{QStringLiteral("selMethod"), QStringLiteral("4")}},
       {},
       QStringLiteral("41 00-10 3 200")},
      {"in the screen's order",
       {{QStringLiteral("startMode"), QStringLiteral("2")},
        {QStringLiteral("lessonFile"), QStringLiteral("名詞.tav")}},
       {},
       QStringLiteral("02 00-10 3 200")},
      {"numbers",
       {{QStringLiteral("levelFrom"), QStringLiteral("7")},
        {QStringLiteral("maxLoadWords"), QStringLiteral("25000")}},
       {},
       QStringLiteral("20 07-10 3 24990")},
      {"a number out of bounds",
       {{QStringLiteral("reviewCycle"), QStringLiteral("10")}},
       QStringLiteral("reviewCycle: 0 から 9 までの整数"),
       QStringLiteral("20 00-10 3 200")},
      {"a code that is none",
       {{QStringLiteral("selMethod"), QStringLiteral("6")}},
       QStringLiteral("selMethod: 012345 の"),
       QStringLiteral("20 00-10 3 200")},
      {"a start without its mode",
       {{QStringLiteral("startEnglish"), QStringLiteral("bank")}},
       QStringLiteral("startEnglish: startMode=3"),
       QStringLiteral("20 00-10 3 200")},
      {"a name that is none",
       {{QStringLiteral("reviewCycle"), QStringLiteral("5")},
        {QStringLiteral("speed"), QStringLiteral("9")}},
       QStringLiteral("speed という条件はありません"),
       QStringLiteral("20 00-10 3 200")},
      {"what has no control",
       {{QStringLiteral("firstRepeatSent"), QStringLiteral("4")}},
       QStringLiteral("firstRepeatSent: 1 から 3"),
       QStringLiteral("20 00-10 3 200")},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    enter();
    const QString complaint = setByName(rules, conditions, c.values);
    EXPECT_TRUE(complaint.startsWith(c.complaint)) << qPrintable(complaint);
    EXPECT_EQ(complaint.isEmpty(), c.complaint.isEmpty());
    EXPECT_EQ(QStringLiteral("%1%2 %3-%4 %5 %6")
                  .arg(conditions.selMethod)
                  .arg(conditions.startMode)
                  .arg(conditions.levelFrom, conditions.levelTo)
                  .arg(conditions.reviewCycle)
                  .arg(conditions.maxLoadWords),
              c.record);
  }
  EXPECT_TRUE(setCourseByName(course, {{QStringLiteral("COURSE"), QStringLiteral("3")}})
                  .startsWith(QStringLiteral("COURSE: 0")));
  EXPECT_EQ(course.COURSE, course高校);
}

TEST_F(LessonChoiceTest, LessonFilesOfAllKindsAreMet) {
  enter();
  writeLesson(u"sjis.tav", QByteArray::fromHex("93ae8e8c0d0a") + QByteArray(70, 'a'));
  pick(u"sjis.tav");
  EXPECT_EQ(screen.lesson, QStringList({QStringLiteral("動詞"), QString(60, u'a')}));
  writeLesson(u"empty.tav", QByteArray());
  pick(u"empty.tav");
  rules.chooseStartMode(u'3');
  EXPECT_TRUE(screen.lesson.isEmpty() && screen.starts.isEmpty() && screen.lessonTrouble.isEmpty());

  writeLesson(u"binary.tav", QByteArray("\0\1\2", 3));
  pick(u"binary.tav");
  EXPECT_TRUE(screen.lessonTrouble.contains(QStringLiteral("/binary.tav は読めません")));
  EXPECT_EQ(rules.next(), std::nullopt);
  EXPECT_EQ(dialogs.shown, QStringList{screen.lessonTrouble});

  rules.typeLessonName(QStringLiteral("no.tav"), store.folder());
  EXPECT_TRUE(screen.lesson.isEmpty());
  EXPECT_EQ(rules.next(), std::nullopt);
  EXPECT_EQ(dialogs.shown.last(), store.folder() + QStringLiteral("/no.tavは見つかりません。"));
  rules.typeLessonName(QStringLiteral(" 名詞.tav"), store.folder());
  EXPECT_EQ(conditions.lessonPath(), store.folder() + QStringLiteral("/名詞.tav"));
  EXPECT_EQ(screen.lesson, QStringList{QStringLiteral("apple")});

  const QString barred = store.folder() + QStringLiteral("/a|b");
  QDir().mkdir(barred);
  rules.pickLesson(barred, QStringLiteral("x.tav"));
  EXPECT_TRUE(dialogs.shown.last().contains(QStringLiteral("選べません")));
  EXPECT_EQ(conditions.lessonFolder, store.folder()) << "the record could not hold it";
}

}  // namespace
}  // namespace tavoli
