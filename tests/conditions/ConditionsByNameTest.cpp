#include <QDir>

#include <gtest/gtest.h>

#include "conditions/ConditionsByName.h"
#include "tests/support/ConditionsOverStore.h"
#include "tests/support/Print.h"

using namespace Qt::StringLiterals;

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
    EXPECT_EQ(u"%1%2 %3-%4 %5 %6"_s.arg(conditions.selMethod)
                  .arg(conditions.startMode)
                  .arg(conditions.levelFrom, conditions.levelTo)
                  .arg(conditions.reviewCycle)
                  .arg(conditions.maxLoadWords),
              QString::fromUtf16(c.record));
  }
  EXPECT_TRUE(setCourseByName(course, {{u"COURSE"_s, u"3"_s}}).startsWith(u"COURSE: 0"_s));
  EXPECT_EQ(course.COURSE, course高校);
}

TEST_F(LessonChoiceTest, LessonFilesOfAllKindsAreMet) {
  enter();
  writeLesson(u"sjis.tav", QByteArray::fromHex("93ae8e8c0d0a") + QByteArray(70, 'a'));
  pick(u"sjis.tav");
  EXPECT_EQ(screen.lesson, QStringList({u"動詞"_s, QString(60, u'a')}));
  writeLesson(u"empty.tav", QByteArray());
  pick(u"empty.tav");
  rules.chooseStartMode(u'3');
  EXPECT_TRUE(screen.lesson.isEmpty() && screen.starts.isEmpty() && screen.lessonTrouble.isEmpty());

  writeLesson(u"binary.tav", QByteArray("\0\1\2", 3));
  pick(u"binary.tav");
  EXPECT_TRUE(screen.lessonTrouble.contains(u"/binary.tav は読めません"_s));
  EXPECT_EQ(rules.next(), std::nullopt);
  EXPECT_EQ(dialogs.shown, QStringList{screen.lessonTrouble});

  rules.typeLessonName(u"no.tav"_s, store.folder());
  EXPECT_TRUE(screen.lesson.isEmpty());
  EXPECT_EQ(rules.next(), std::nullopt);
  EXPECT_EQ(dialogs.shown.last(), store.folder() + u"/no.tavは見つかりません。"_s);
  rules.typeLessonName(u" 名詞.tav"_s, store.folder());
  EXPECT_EQ(conditions.lessonPath(), store.folder() + u"/名詞.tav"_s);
  EXPECT_EQ(screen.lesson, QStringList{u"apple"_s});

  const QString barred = store.folder() + u"/a|b"_s;
  QDir().mkdir(barred);
  rules.pickLesson(barred, u"x.tav"_s);
  EXPECT_TRUE(dialogs.shown.last().contains(u"選べません"_s));
  EXPECT_EQ(conditions.lessonFolder, store.folder()) << "the record could not hold it";
}

}  // namespace
}  // namespace tavoli
