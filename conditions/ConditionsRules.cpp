// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/ConditionsRules.h"

#include "conditions/ConditionsStore.h"
#include "conditions/PastConditions.h"
#include "conditions/StartCheck.h"
#include "conditions/StartList.h"
#include "data/Schema.h"
#include "data/Text.h"
#include "system/Dialogs.h"
#include "system/Files.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

const QString lastRunCaption = u"前回（中学／高校／専門別）"_s;

/// Shows the wait cursor as long as it lives.
class Busy {
 public:
  explicit Busy(ConditionsScreen& screen) : m_screen(screen) { m_screen.setBusy(true); }
  ~Busy() { m_screen.setBusy(false); }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;

 private:
  ConditionsScreen& m_screen;
};

}  // namespace

ConditionsRules::ConditionsRules(const LearnerFiles& learner, CourseChoice& course,
                                 PracticeConditions& conditions, const ConditionsServices& services)
    : m_learner(learner),
      m_course(course),
      m_conditions(conditions),
      m_services(services),
      m_lesson(services.files, conditions) {}

bool ConditionsRules::enter(ConditionsScreen& screen) {
  m_screen = &screen;
  m_pastConditions = pastConditions(m_services.files, m_learner.condFileWork);
  m_screen->listPastRuns(listPastConditions(m_pastConditions));
  m_screen->showFolder(m_services.standardFolder);
  Loaded shown = changeCourse(m_course.COURSE);
  if (shown == Loaded::NoTable) shown = changeCourse(Course::高校);
  if (shown == Loaded::Yes) m_screen->focusNext();
  return shown == Loaded::Yes;
}

std::optional<Database> ConditionsRules::openStore() {
  OpenedDatabase opened = openDatabase(m_learner.dbFileWork);
  if (!opened.database)
    m_services.dialogs.show(openTrouble(m_learner.dbFileWork, opened.errorNumber));
  return std::move(opened.database);
}

void ConditionsRules::chooseCourse(Course COURSE) {
  changeCourse(COURSE);
}

ConditionsRules::Loaded ConditionsRules::changeCourse(Course COURSE) {
  const Loaded loaded = switchCourse(COURSE);
  return loaded == Loaded::NoTable ? offerSpecialTables() : loaded;
}

ConditionsRules::Loaded ConditionsRules::switchCourse(Course COURSE) {
  const Course before = m_course.COURSE;
  const QString tableBefore = m_shownTable;
  m_course.COURSE = COURSE;
  m_shownTable.clear();
  const Loaded loaded = loadRecord();
  if (loaded == Loaded::Yes) {
    if (COURSE == Course::専門) m_shownTable = m_course.specialTable;
    showRecord();
    return loaded;
  }
  if (loaded == Loaded::Failed) {
    m_course.COURSE = before;
    m_shownTable = tableBefore;
  }
  m_screen->showCourse(m_course.COURSE, m_shownTable);
  return loaded;
}

ConditionsRules::Loaded ConditionsRules::loadRecord() {
  std::optional<Database> database = openStore();
  if (!database) return Loaded::Failed;
  const QString table = prWhichTable(m_course).first();
  if (m_course.COURSE == Course::専門 && !specialTables(*database).contains(table))
    return Loaded::NoTable;
  const auto rsTDIC = database->OpenRecordset(table);
  if (!rsTDIC) {
    m_services.dialogs.show(openTrouble(m_learner.dbFileWork, openError::notADatabase));
    return Loaded::Failed;
  }
  m_conditions = loadConditions(*rsTDIC, m_learner.userId, m_services.standardFolder);
  return Loaded::Yes;
}

void ConditionsRules::chooseSpecialTable() {
  if (m_course.COURSE == Course::専門 || switchCourse(Course::専門) != Loaded::Failed)
    offerSpecialTables();
}

ConditionsRules::Loaded ConditionsRules::offerSpecialTables() {
  std::optional<Database> database = openStore();
  if (!database) return Loaded::Failed;
  const QStringList tables = specialTables(*database);
  database.reset();
  const std::optional<QString> chosen = m_screen->chooseSpecialTable(tables, m_shownTable);
  if (chosen) return useSpecialTable(*chosen);
  return m_shownTable.isEmpty() ? changeCourse(Course::高校) : Loaded::Yes;
}

ConditionsRules::Loaded ConditionsRules::useSpecialTable(const QString& table) {
  m_course.specialTable = table;
  m_shownTable = table;
  const Loaded loaded = loadRecord();
  if (loaded == Loaded::Yes) {
    showRecord();
    if (m_services.recount) {
      const Busy busy(*m_screen);
      m_services.recount(table);
    }
    return loaded;
  }
  if (loaded == Loaded::NoTable) m_services.dialogs.show(missingTable(table));
  m_screen->showCourse(m_course.COURSE, m_shownTable);
  return loaded;
}

void ConditionsRules::showRecord() {
  m_snapshot = m_conditions;
  m_prevSelMethod = m_conditions.selMethod;
  m_startBroken = false;
  m_screen->showCourse(m_course.COURSE, m_shownTable);
  m_screen->showPastRun(lastRunCaption, lastRun(m_course, m_conditions));

  m_lesson.takeFromConditions();
  m_lesson.dropMissing();
  m_screen->showFolder(m_conditions.lessonFolder);
  m_screen->showLessonName(m_lesson.text());
  m_screen->showLesson(m_lesson.lines(), m_lesson.trouble());

  m_screen->showMethod(m_conditions.selMethod);
  m_screen->showStartMode(m_conditions.startMode);
  m_screen->showMemory(m_conditions.memorySelect);
  showNumbers();
  if (m_conditions.startMode == StartMode::named) {
    fillStarts();
    restoreSpecifiedStart();
  } else {
    m_screen->listStarts({});
    setStart(QString());
  }
}

void ConditionsRules::showNumbers() {
  for (int i = 0; i < numberFieldCount; ++i) leaveNumber(static_cast<NumberField>(i));
}

void ConditionsRules::chooseMethod(SelMethod selMethod) {
  m_conditions.selMethod = selMethod;
  m_screen->showMethod(selMethod);
  if (m_conditions.usesLesson()) {
    if (m_conditions.isRandom() && m_conditions.startMode != StartMode::first) {
      m_services.dialogs.show(u"開始英語の指定を「最初から」に設定します。"_s);
      chooseStartMode(StartMode::first);
    }
    m_screen->focusLessonName();
    readLesson();
    m_lesson.dropMissing();
  }
  if (!sameMethodAsLastRun()) {
    chooseStartMode(StartMode::first);
    setStart(QString());
  } else if (m_conditions.startMode == StartMode::named) {
    fillStarts();
  } else {
    m_startBroken = m_startBroken && !goesOnFromLastRun();
  }
}

bool ConditionsRules::sameMethodAsLastRun() const {
  return materialOf(m_conditions.selMethod) == materialOf(m_prevSelMethod);
}

bool ConditionsRules::goesOnFromLastRun() const {
  return sameMethodAsLastRun() &&
         (!m_conditions.usesLesson() ||
          trimBlanks(m_snapshot.lessonFile) == trimBlanks(m_conditions.lessonFile));
}

void ConditionsRules::chooseStartMode(StartMode startMode) {
  m_conditions.startMode = startMode;
  m_startBroken = false;
  m_screen->showStartMode(startMode);
  if (startMode == StartMode::first) return;
  if (startMode == StartMode::named) {
    fillStarts();
    if (m_snapshot.startMode == StartMode::named) restoreSpecifiedStart();
    return;
  }
  if (!goesOnFromLastRun()) tellBrokenStart();
}

void ConditionsRules::tellBrokenStart() {
  m_startBroken = true;
  QStringList lines = {
      u"開始英語の指定が"_s, u"「・前回と同じ英語から」、「・前回の最後に続けて」の場合は"_s,
      u"前回と「同じレッスンファイル」、「同じ練習対象の選択方法」でなければなりません。 "_s};
  if (sameMethodAsLastRun()) lines.append(m_snapshot.lessonFile + u'≠' + m_conditions.lessonFile);
  lines.append(u"今回は最初から実行します。"_s);
  m_services.dialogs.show(lines.join(u'\n'));
}

void ConditionsRules::chooseMemory(MemorySelect memorySelect) {
  m_conditions.memorySelect = memorySelect;
  m_screen->showMemory(memorySelect);
}

void ConditionsRules::fillStarts() {
  setStart(QString());
  QStringList starts;
  bool tableMissing = false;
  {
    const Busy busy(*m_screen);
    if (m_conditions.usesLesson()) {
      starts = lessonStarts(m_lesson.lines());
    } else if (std::optional<Database> database = openStore()) {
      if (m_conditions.usesWords()) {
        const auto words = wordStarts(*database, prWhichTable(m_course).first());
        tableMissing = !words;
        starts = words.value_or(QStringList());
      } else {
        starts = sentenceStarts(*database, m_course.COURSE);
      }
    }
    m_screen->listStarts(starts);
  }
  if (tableMissing && m_course.COURSE == Course::専門) {
    m_services.dialogs.show(missingTable(m_course.specialTable));
    changeCourse(Course::高校);
    return;
  }
  setStart(starts.value(0));
}

void ConditionsRules::setStart(const QString& text) {
  m_startText = text;
  m_screen->showStart(text);
}

void ConditionsRules::restoreSpecifiedStart() {
  if (m_conditions.startMode == StartMode::named &&
      materialOf(m_conditions.selMethod) == materialOf(m_snapshot.selMethod) &&
      m_snapshot.lessonFile == m_lesson.text())
    setStart(m_snapshot.startEnglish);
}

void ConditionsRules::typeStart(const QString& text) {
  m_startText = text;
}

void ConditionsRules::readLesson() {
  m_lesson.read();
  m_screen->showLesson(m_lesson.lines(), m_lesson.trouble());
}

void ConditionsRules::pickLesson(const QString& folder, const QString& name) {
  // The record keeps both in one text, with "|" between them.
  if (folder.contains(fieldMark) || (folder + name).contains(u'\n')) {
    m_services.dialogs.show(
        u"%1 は名前に使えない文字（| や改行）を含むので、選べません。"_s.arg(pathIn(folder, name)));
    return;
  }
  m_screen->showLessonName(name);
  typeLessonName(name, folder);
  m_screen->focusLessonName();
}

void ConditionsRules::typeLessonName(const QString& text, const QString& folder) {
  const QString before = m_conditions.lessonFile;
  m_lesson.setText(text, folder);
  if (m_conditions.selMethod != SelMethod::lessonInOrder) chooseMethod(SelMethod::lessonInOrder);
  readLesson();
  // A new file starts from the top.
  if (m_lesson.exists() && m_conditions.lessonFile != before) chooseStartMode(StartMode::first);
}

void ConditionsRules::typeNumber(NumberField field, const QString& text) {
  m_screen->showNumber(field, tavoli::typeNumber(field, text, m_conditions));
}

void ConditionsRules::leaveNumber(NumberField field) {
  m_screen->showNumber(field, numberText(field, m_conditions));
}

void ConditionsRules::stepNumber(NumberField field, int steps) {
  tavoli::stepNumber(field, steps, m_conditions);
  leaveNumber(field);
}

void ConditionsRules::restoreReviewCycle() {
  m_conditions.reviewCycle = PracticeConditions().reviewCycle;
  showNumbers();
}

void ConditionsRules::restoreTargets() {
  const PracticeConditions standard;
  m_conditions.targetSentA = standard.targetSentA;
  m_conditions.targetSentB = standard.targetSentB;
  m_conditions.targetWordA = standard.targetWordA;
  m_conditions.targetWordB = standard.targetWordB;
  showNumbers();
}

void ConditionsRules::choosePastRun(int index) {
  if (index < 0 || index >= m_pastConditions.size()) return;
  m_screen->showPastRun(listPastConditions(m_pastConditions)[index],
                        readConditions(m_pastConditions[index]));
}

std::optional<QString> ConditionsRules::next() {
  if (m_course.COURSE == Course::専門 && trimBlanks(m_course.specialTable).isEmpty()) {
    m_services.dialogs.show(u"専門辞書の指定ができていません。"_s);
    return std::nullopt;
  }
  if (m_conditions.usesLesson()) {
    const QString trouble =
        m_lesson.exists() ? m_lesson.trouble() : m_lesson.path() + u"は見つかりません。"_s;
    if (!trouble.isEmpty()) {
      m_services.dialogs.show(trouble);
      return std::nullopt;
    }
  }
  QString startKey = startKeyFirst;
  if (m_conditions.startMode == StartMode::named) {
    const std::optional<QString> specified = specifiedStart();
    if (!specified) return std::nullopt;
    m_conditions.startEnglish = *specified;
    startKey = startKeyOf(m_conditions);
  } else if (m_conditions.startMode == StartMode::first) {
    m_conditions.startEnglish.clear();
  } else if (!m_startBroken) {
    startKey = startKeyOf(m_conditions);
  }
  return startKey;
}

std::optional<QString> ConditionsRules::specifiedStart() {
  const QString named = trimBlanks(m_startText);
  const StartCheck check =
      m_conditions.usesLesson()
          ? checkLessonStart(named, m_conditions, m_lesson.lines())
          : checkTableStart(named, m_conditions, m_course, m_services.files, m_learner.dbFileWork);
  if (!check.trouble.isEmpty()) {
    m_services.dialogs.show(check.trouble);
    return std::nullopt;
  }
  if (!check.question.isEmpty() && !m_services.dialogs.ask(check.question)) {
    m_screen->focusStart();
    return std::nullopt;
  }
  return check.startKey;
}

}  // namespace tavoli
