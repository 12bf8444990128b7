#pragma once

#include <gtest/gtest.h>

#include "conditions/ConditionsRules.h"
#include "conditions/ConditionsStore.h"
#include "system/Files.h"
#include "tests/support/Fakes.h"
#include "tests/support/RecordingConditions.h"
#include "tests/support/TestStore.h"

namespace tavoli::test {

using namespace Qt::StringLiterals;

/// The screen over a store whose last runs are told by records, entered with 高校 unless another
/// course is set.
class ConditionsOverStore : public testing::Test {
 protected:
  ConditionsOverStore() {
    for (const char16_t* word : {u"apple", u"bank", u"go abroad"})
      store.addWord(tableSTDIC, QString::fromUtf16(word), QString());
    store.addWord(tableJTDIC, u"cat"_s, QString());
    store.addWord(u"BusinessTOEIC"_s, u"merger"_s, QString());
    for (const char16_t* key : {u"000120", u"500010"})
      store.addSentence(QString::fromUtf16(key), u"彼は学生です。|"_s);
    writeLesson(u"動詞.tav", "*動詞\ngo abroad\r\n000120･彼は\n  bank \n");
    writeLesson(u"名詞.tav", "apple\n");
    last.lessonFolder = store.folder();
    last.lessonFile = u"動詞.tav"_s;
    last.firstEnglish = u"bank"_s;
    last.lastEnglish = u"go abroad"_s;
  }

  void writeLesson(const char16_t* name, const QByteArray& content) {
    EXPECT_EQ(files.write(store.folder() + u'/' + QString::fromUtf16(name), content),
              FileResult::Ok);
  }
  void remember(const QString& table, const PracticeConditions& c) {
    EXPECT_TRUE(saveConditions(*store.database().OpenRecordset(table), c));
  }
  /// Stores `last` as the record of 高校 and enters.
  void enter() {
    remember(tableSTDIC, last);
    ASSERT_TRUE(rules.enter(screen));
  }
  void pick(const char16_t* name) { rules.pickLesson(store.folder(), QString::fromUtf16(name)); }

  TestStore store;
  SystemFiles files;
  ScriptedDialogs dialogs;
  RecordingConditions screen;
  LearnerFiles learner{u"taro"_s, {}, store.path(), {},   store.folder() + u"/TavoCond"_s,
                       {},        {}, {},           false};
  CourseChoice course;
  PracticeConditions conditions;
  PracticeConditions last;
  QStringList recounted;
  ConditionsRules rules{learner, course, conditions,
                        ConditionsServices{files, dialogs, store.folder(),
                                           [this](const QString& t) { recounted.append(t); }}};
};

}  // namespace tavoli::test
