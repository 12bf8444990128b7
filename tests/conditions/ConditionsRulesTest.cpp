#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include "conditions/ConditionsByName.h"
#include "tests/support/ConditionsOverStore.h"
#include "tests/support/Print.h"

using namespace Qt::StringLiterals;

namespace tavoli {
namespace {

using ConditionsRulesTest = test::ConditionsOverStore;
using ConditionsByNameTest = test::ConditionsOverStore;
using LessonChoiceTest = test::ConditionsOverStore;

const QString special = u"BusinessTOEIC"_s;
const QString forcedToBeginning = u"開始英語の指定を「最初から」に設定します。"_s;
const QString brokenStart =
    u"開始英語の指定が\n「・前回と同じ英語から」、「・前回の最後に続けて」の場合は\n"
    u"前回と「同じレッスンファイル」、「同じ練習対象の選択方法」でなければなりません。 \n"_s;
const QString fromBeginning = u"今回は最初から実行します。"_s;

TEST_F(ConditionsRulesTest, EachCourseBringsItsOwnRecordBack) {
  PracticeConditions other = last;
  other.memorySelect = MemorySelect::すべて;
  other.levelTo = u"03"_s;
  remember(tableJTDIC, other);
  enter();
  EXPECT_EQ(screen.focus, u'N');
  EXPECT_EQ(screen.lesson.size(), 4);
  EXPECT_EQ(screen.pastCaption, u"前回（中学／高校／専門別）"_s);
  EXPECT_EQ(screen.pastRun.lastEnglish, u"go abroad"_s);
  rules.chooseMemory(MemorySelect::完全);
  rules.chooseCourse(Course::中学);
  EXPECT_EQ(course.COURSE, Course::中学);
  EXPECT_EQ(screen.memorySelect, MemorySelect::すべて);
  EXPECT_EQ(screen.numbers[NumberField::LevelTo], u"3"_s);
  rules.chooseCourse(Course::高校);
  EXPECT_EQ(conditions.memorySelect, MemorySelect::全然とうろ覚え)
      << "a choice that no run used is lost";
}

TEST_F(ConditionsRulesTest, ASpecialistDictionaryHasToBeThere) {
  const QString vanished = u"Vanished"_s;
  const QString notFound =
      u"専門単熟DB Vanished が見つかりません。「中学／高校／専門の選択」で指定し直してください。"_s;
  using Choices = QList<std::optional<QString>>;
  const struct {
    const char* name;
    QString before;
    Choices choices;
    Course courseAfter;
    QString tableAfter;
    QString message = QString();
    QString counted = QString();
  } cases[] = {
      {"known", special, Choices(), Course::専門, special},
      {"vanished, another chosen", vanished, {special}, Course::専門, special, {}, special},
      {"vanished, cancelled", vanished, {std::nullopt}, Course::高校, {}},
      {"none yet, cancelled", QString(), {std::nullopt}, Course::高校, {}},
      {"chosen one vanishes too", vanished, {vanished}, Course::専門, vanished, notFound},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    course = {Course::高校, c.before};
    enter();
    screen.choices = c.choices;
    screen.offered.clear();
    recounted.clear();
    dialogs.shown.clear();
    rules.chooseCourse(Course::専門);
    EXPECT_EQ(screen.offered, QStringList(c.choices.size(), special + u'>'));
    EXPECT_EQ(course.COURSE, c.courseAfter);
    EXPECT_EQ(screen.course, c.courseAfter);
    EXPECT_EQ(screen.specialTable, c.tableAfter);
    EXPECT_EQ(dialogs.shown.join(u'|'), c.message);
    EXPECT_EQ(recounted.join(u'|'), c.counted);
  }
  course = {Course::専門, vanished};
  screen.choices = {vanished};
  ASSERT_TRUE(rules.enter(screen));
  EXPECT_EQ(course.COURSE, Course::高校) << "the screen opens with a dictionary that is there";
  EXPECT_EQ(screen.lesson.size(), 4);
}

TEST_F(ConditionsRulesTest, WithoutAnySpecialistDictionaryNoRunStarts) {
  learner.dbFileWork = store.folder() + u"/bare.mdb"_s;
  auto made = createDatabase(learner.dbFileWork);
  for (const QString& table : {tableBDIC, tableJTDIC, tableSTDIC})
    EXPECT_TRUE(made->createTable(table));
  made.reset();
  ASSERT_TRUE(rules.enter(screen));
  screen.choices = {QString()};
  rules.chooseCourse(Course::専門);
  EXPECT_EQ(screen.offered, QStringList{u">"_s});
  ASSERT_EQ(dialogs.shown.size(), 1);
  EXPECT_TRUE(dialogs.shown.takeFirst().startsWith(u"専門単熟DB  が"_s));
  EXPECT_EQ(rules.next(), std::nullopt);
  EXPECT_EQ(dialogs.shown, QStringList{u"専門辞書の指定ができていません。"_s});
}

TEST_F(ConditionsRulesTest, AnUnreadableDatabaseChangesNothing) {
  enter();
  QFile::rename(store.path(), store.path() + u'x');
  rules.chooseCourse(Course::中学);
  EXPECT_EQ(course.COURSE, Course::高校);
  EXPECT_EQ(screen.course, Course::高校);
  rules.chooseStartMode(StartMode::named);
  EXPECT_TRUE(screen.starts.isEmpty());
  const QString trouble = store.path() + u" : OpenDatabase error    Err.Number=3024"_s;
  EXPECT_EQ(dialogs.shown, QStringList({trouble, trouble}));
  EXPECT_EQ(rules.next(), std::nullopt);
  EXPECT_EQ(dialogs.shown.last(), store.path() + u" : not found"_s);
  EXPECT_FALSE(rules.enter(screen));
}

/// Clicks: m a method, s a start mode, p picks the other lesson file, P the same one again, t types
/// the start that follows, n presses Next.
TEST_F(ConditionsRulesTest, ClicksLeadToTheRecordTheMessagesAndTheStart) {
  const QString otherLesson = brokenStart + u"動詞.tav≠名詞.tav\n"_s + fromBeginning;
  const QString otherMethod = brokenStart + fromBeginning;
  const QString notInTable =
      u"指定開始英語の cow はデータベース中にありません。\n無視して続けますか。"_s;
  const QString notInLesson =
      u"指定開始英語の cow は 動詞.tav の中にありません。\n無視して続けますか。"_s;
  const struct {
    const char* name;
    const char* record;  ///< selMethod and startMode of the last run
    const char16_t* clicks;
    const char* then;          ///< the same when all was done
    const char16_t* startKey;  ///< "-" when the screen stays
    QString message = QString();
    bool yes = true;
  } cases[] = {
      {"words where they began", "20", u"n", "20", u"bank"},
      {"the same group keeps the start", "20", u"m3 n", "30", u"bank"},
      {"another group starts from the first", "20", u"m4 n", "41", u"000000"},
      {"the last place of another group", "20", u"m4 s0 n", "40", u"000000", otherMethod},
      {"and at another try to begin", "20", u"m4 s0 n n", "40", u"000000", otherMethod},
      {"until the last method is chosen again", "20", u"m4 s0 n m2 n", "20", u"bank", otherMethod},
      {"the same lesson goes on", "00", u"s2 n", "02", u"go abroad"},
      {"the same file picked again", "02", u"P n", "02", u"go abroad"},
      {"another file starts from the top", "00", u"p n", "01", u"000000"},
      {"another file where the last ended", "00", u"p s2 n", "02", u"000000", otherLesson},
      {"picking a file means a lesson in order", "20", u"p n", "01", u"000000"},
      {"a random lesson starts from the top", "00", u"m1 n", "11", u"000000", forcedToBeginning},
      {"without a word where it does anyway", "01", u"m1 n", "11", u"000000"},
      {"a word named", "20", u"s3 tBank n", "23", u"Bank"},
      {"the list's first word", "20", u"s3 n", "23", u"apple"},
      {"a word that is not there", "20", u"s3 tcow n", "23", u"cow", notInTable},
      {"and is not wanted then", "20", u"s3 tcow n", "23", u"-", notInTable, false},
      {"a sentence named", "40", u"s3 t500010･彼 n", "43", u"500010･彼"},
      {"a line of the lesson", "00", u"s3 tbank n", "03", u"bank"},
      {"its sentence", "00", u"s3 t000120 n", "03", u"000120･"},
      {"its sentence at random", "11", u"s3 t000120 n", "13", u"000120"},
      {"a line that is not there", "10", u"s3 tcow n", "13", u"-", notInLesson, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    last.selMethod = codeOf<SelMethod>(QLatin1Char(c.record[0]));
    last.startMode = codeOf<StartMode>(QLatin1Char(c.record[1]));
    enter();
    dialogs.shown.clear();
    dialogs.asked.clear();
    dialogs.answers = {c.yes};
    QString startKey;
    for (const QString& click : QString::fromUtf16(c.clicks).split(u' ')) {
      const QString rest = click.sliced(1);
      if (click[0] == u'm') rules.chooseMethod(codeOf<SelMethod>(rest));
      if (click[0] == u's') rules.chooseStartMode(codeOf<StartMode>(rest));
      if (click[0] == u'p') pick(u"名詞.tav");
      if (click[0] == u'P') pick(u"動詞.tav");
      if (click[0] == u't') rules.typeStart(rest);
      if (click[0] == u'n') startKey = rules.next().value_or(u"-"_s);
    }
    EXPECT_EQ(QString(stored(screen.selMethod)) + stored(screen.startMode), QLatin1String(c.then));
    EXPECT_EQ(QString(stored(conditions.selMethod)) + stored(conditions.startMode),
              QLatin1String(c.then));
    EXPECT_EQ((dialogs.shown + dialogs.asked).join(u'|'), c.message);
    EXPECT_EQ(startKey, QString::fromUtf16(c.startKey));
    EXPECT_EQ(screen.focus == u'S', startKey == u"-");
    EXPECT_EQ(screen.busyDepth, 0);
  }
}

TEST_F(ConditionsRulesTest, AFirstRunHasNoPlaceToGoOnFrom) {
  ASSERT_TRUE(rules.enter(screen));
  rules.chooseStartMode(StartMode::whereEnded);
  EXPECT_EQ(rules.next(), startKeyFirst);
  EXPECT_TRUE(dialogs.shown.isEmpty());
}

TEST_F(ConditionsRulesTest, ASpecifiedStartComesBackWithItsGroupAndFile) {
  last.startMode = StartMode::named;
  last.startEnglish = u"bank"_s;
  enter();
  EXPECT_EQ(screen.starts.size(), 4) << "the end mark is listed";
  EXPECT_EQ(screen.start, u"bank"_s);
  rules.chooseMethod(SelMethod::sentencesInOrder);
  EXPECT_EQ(screen.startMode, StartMode::first);
  EXPECT_EQ(screen.start, QString());
  rules.chooseStartMode(StartMode::named);
  EXPECT_EQ(screen.start, u"500010･彼は学生です。"_s);
  rules.chooseMethod(SelMethod::wordsAtRandom);
  EXPECT_EQ(screen.start, u"apple"_s) << "the first of the list";
  rules.chooseStartMode(StartMode::named);
  EXPECT_EQ(screen.start, u"bank"_s);

  last.selMethod = SelMethod::lessonInOrder;
  enter();
  pick(u"名詞.tav");
  rules.chooseStartMode(StartMode::named);
  EXPECT_EQ(screen.start, u"apple"_s) << "the other file's first";
}

TEST_F(ConditionsRulesTest, PastRunsAreLookedBackOn) {
  PracticeConditions past = last;
  past.memorySelect = MemorySelect::完全とうろ覚え;
  const QString line = pastConditionsLine(QDate(2026, 4, 2), {Course::専門, special}, past);
  ASSERT_EQ(files.write(learner.condFileWork, line.toUtf8() + '\n'), FileResult::Ok);
  enter();
  EXPECT_EQ(screen.pastRuns.size(), 1);
  rules.choosePastRun(0);
  EXPECT_EQ(screen.pastCaption, u"001　2026/04/02専"_s);
  EXPECT_EQ(screen.pastRun.memorySelect, MemorySelect::完全とうろ覚え);
  rules.choosePastRun(1);
  EXPECT_EQ(screen.pastRun.memorySelect, MemorySelect::完全とうろ覚え) << "there is none";
  EXPECT_EQ(conditions.memorySelect, MemorySelect::全然とうろ覚え) << "for looking only";
}

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
    EXPECT_EQ(u"%1%2 %3-%4 %5 %6"_s.arg(stored(conditions.selMethod))
                  .arg(stored(conditions.startMode))
                  .arg(conditions.levelFrom, conditions.levelTo)
                  .arg(conditions.reviewCycle)
                  .arg(conditions.maxLoadWords),
              QString::fromUtf16(c.record));
  }
  EXPECT_TRUE(setCourseByName(course, {{u"COURSE"_s, u"3"_s}}).startsWith(u"COURSE: 0"_s));
  EXPECT_EQ(course.COURSE, Course::高校);
}

TEST_F(LessonChoiceTest, LessonFilesOfAllKindsAreMet) {
  enter();
  writeLesson(u"sjis.tav", QByteArray::fromHex("93ae8e8c0d0a") + QByteArray(70, 'a'));
  pick(u"sjis.tav");
  EXPECT_EQ(screen.lesson, QStringList({u"動詞"_s, QString(60, u'a')}));
  writeLesson(u"empty.tav", QByteArray());
  pick(u"empty.tav");
  rules.chooseStartMode(StartMode::named);
  EXPECT_TRUE(screen.lesson.isEmpty() && screen.starts.isEmpty() && screen.lessonTrouble.isEmpty());

  writeLesson(u"binary.tav", QByteArray("\0\1\2", 3));
  pick(u"binary.tav");
  EXPECT_TRUE(screen.lessonTrouble.contains(u"/binary.tav は読めません"_s));
  EXPECT_EQ(rules.next(), std::nullopt);
  EXPECT_EQ(dialogs.shown, QStringList{screen.lessonTrouble});

  rules.typeLessonName(u"no.tav"_s, u"/elsewhere"_s);
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
