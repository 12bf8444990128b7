#include <gtest/gtest.h>

#include "data/Courses.h"
#include "data/CurrentRecord.h"
#include "itemtext/QuestionText.h"
#include "tests/support/Print.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

TEST(QuestionTextTest, StartsTheAnswerBox) {
  const auto start = [](const QString& 問題文) {
    return answerStart(
        ParseRecord(u"%1|030008He is an00000000^|"_s.arg(問題文), QString(), TableCode::sentences),
        1);
  };
  const QString ask = u"次の英文に誤りがあれば訂正しなさい"_s;
  EXPECT_EQ(start(u"彼は"_s), u"He "_s);
  EXPECT_EQ(start(ask + u"。％注意％％He [are] a boy."_s), u"He are a boy."_s);
  EXPECT_EQ(start(ask + u"。％{He} are."_s), u"He are."_s);
  EXPECT_EQ(start(ask), u"しなさい"_s) << "without a break, from position 14";
  EXPECT_EQ(start(ask + u"％％"_s), QString());
}

TEST(QuestionTextTest, NamesWhereAnItemComesFrom) {
  CurrentRecord record = ParseRecord(u"問||"_s, QString(), TableCode::sentences);
  QString labels;
  for (const QString& key : {u"499990"_s, u"500000"_s, u"899990"_s, u"900000"_s})
    labels += sourceLabel(record, key, TableCode::sentences, Course::高校).sliced(3);
  EXPECT_EQ(labels, u"中学高校高校専門"_s);
  record.sentence = false;
  labels.clear();
  for (const Course COURSE : {Course::中学, Course::高校, Course::専門})
    for (const TableCode place : {TableCode::first, TableCode::second, TableCode::third})
      labels += sourceLabel(record, u"a"_s, place, COURSE).mid(3) + u' ';
  EXPECT_EQ(labels, u"中学DB 高校DB  高校DB 中学DB  専門DB 高校DB 中学DB "_s);
}

}  // namespace
}  // namespace tavoli
