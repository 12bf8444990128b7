#include <gtest/gtest.h>

#include "conditions/PracticeConditions.h"
#include "conditions/StartList.h"
#include "tests/support/Print.h"
#include "tests/support/TestStore.h"

namespace tavoli {
namespace {

QStringList lines(const char16_t* text) {
  return QString::fromUtf16(text).split(u'\n');
}

TEST(StartListTest, LeavesOutTheCommentsOfALesson) {
  EXPECT_EQ(lessonStarts(lines(u"*見出し\n000120･彼は学生\n  go abroad \n!メモ\n000120")),
            lines(u"000120･\ngo abroad\n!メモ\n000120"));
  EXPECT_TRUE(lessonStarts({}).isEmpty());
}

TEST(StartListTest, ListsADictionaryUpToItsEndMark) {
  test::TestStore store;
  for (const QString& word : lines(u"zoo\n～ or so\nApple\nzzzz\nzzzzzzzzzzzzzzzzzzzz2"))
    store.addWord(tableJTDIC, word, QString());
  EXPECT_EQ(wordStarts(store.database(), tableJTDIC),
            lines(u"～ or so\nApple\nzoo\nzzzzzzzzzzzzzzzzzzzz1"));
  EXPECT_EQ(wordStarts(store.database(), QStringLiteral("Vanished")), std::nullopt);
}

TEST(StartListTest, ListsTheSentencesFromTheCoursesFirstToTheLast) {
  test::TestStore store;
  for (const char16_t* key : {u"000120", u"500010", u"900010", u"120"})
    store.addSentence(QString::fromUtf16(key), QStringLiteral("彼は[学生]ではありません。|001|"));
  store.addSentence(QStringLiteral("900020"), QStringLiteral("短い"));
  store.addSentence(rowPassword, QStringLiteral("secret"));
  const QStringList all = lines(
      u"000120･彼は[学生]ではあり\n   120･彼は[学生]ではあり\n500010･彼は[学生]ではあり\n"
      u"900010･彼は[学生]ではあり\n900020･短い");
  EXPECT_EQ(sentenceStarts(store.database(), course中学), all);
  EXPECT_EQ(sentenceStarts(store.database(), course高校), all.mid(2));
  EXPECT_EQ(sentenceStarts(store.database(), course専門), all);
}

}  // namespace
}  // namespace tavoli
