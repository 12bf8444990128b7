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
    const char16_t* values;
    const char16_t* complaint;  ///< its beginning
    const char16_t* record;     ///< selMethod, startMode, levels, reviewCycle, maxLoadWords
  } cases[] = {
      {"nothing", u"", u"", u"20 00-10 3 200"},
      {"another group", u"selMethod=4", u"", u"41 00-10 3 200"},
      {"in the screen's order", u"startMode=2 lessonFile=名詞.tav", u"", u"02 00-10 3 200"},
      {"numbers", u"levelFrom=7 maxLoadWords=25000", u"", u"20 07-10 3 24990"},
      {"a number out of bounds", u"reviewCycle=10", u"reviewCycle: 0 から 9 までの整数",
       u"20 00-10 3 200"},
      {"a code that is none", u"selMethod=6", u"selMethod: 012345 の", u"20 00-10 3 200"},
      {"a start without its mode", u"startEnglish=bank", u"startEnglish: startMode=3",
       u"20 00-10 3 200"},
      {"a name that is none", u"reviewCycle=5 speed=9", u"speed という条件はありません",
       u"20 00-10 3 200"},
      {"what has no control", u"firstRepeatSent=4", u"firstRepeatSent: 1 から 3",
       u"20 00-10 3 200"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    enter();
    NamedValues values;
    for (const QString& value : QString::fromUtf16(c.values).split(u' ', Qt::SkipEmptyParts))
      values.append({value.section(u'=', 0, 0), value.section(u'=', 1)});
    const QString complaint = setByName(rules, conditions, values);
    const QString expected = QString::fromUtf16(c.complaint);
    EXPECT_EQ(complaint.left(expected.size()), expected);
    EXPECT_EQ(complaint.isEmpty(), expected.isEmpty());
    EXPECT_EQ(QStringLiteral("%1%2 %3-%4 %5 %6")
                  .arg(conditions.selMethod)
                  .arg(conditions.startMode)
                  .arg(conditions.levelFrom, conditions.levelTo)
                  .arg(conditions.reviewCycle)
                  .arg(conditions.maxLoadWords),
              QString::fromUtf16(c.record));
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
