#pragma once

#include <QMap>

#include "conditions/ConditionsScreen.h"

namespace tavoli::test {

/// A conditions screen that remembers what it was last told. The specialist dictionary is chosen by
/// a script: each time the next of `choices`, none when there is none left.
class RecordingConditions final : public ConditionsScreen {
 public:
  void showCourse(Course COURSE, const QString& table) override {
    course = COURSE;
    specialTable = table;
  }
  void showMethod(SelMethod code) override { selMethod = code; }
  void showStartMode(StartMode code) override { startMode = code; }
  void listStarts(const QStringList& entries) override { starts = entries; }
  void showStart(const QString& text) override { start = text; }
  void showMemory(MemorySelect code) override { memorySelect = code; }
  void showNumber(NumberField field, const QString& text) override { numbers[field] = text; }
  void showFolder(const QString& path) override { folder = path; }
  void showLessonName(const QString& name) override { lessonName = name; }
  void showLesson(const QStringList& lines, const QString& trouble) override {
    lesson = lines;
    lessonTrouble = trouble;
  }
  void listPastRuns(const QStringList& entries) override { pastRuns = entries; }
  void showPastRun(const QString& caption, const PastRun& run) override {
    pastCaption = caption;
    pastRun = run;
  }
  std::optional<QString> chooseSpecialTable(const QStringList& tables,
                                            const QString& present) override {
    offered.append(tables.join(u'/') + u'>' + present);
    return choices.isEmpty() ? std::nullopt : choices.takeFirst();
  }
  void focusNext() override { focus = u'N'; }
  void focusLessonName() override { focus = u'L'; }
  void focusStart() override { focus = u'S'; }
  void setBusy(bool busy) override { busyDepth += busy ? 1 : -1; }

  Course course{};
  SelMethod selMethod{};
  StartMode startMode{};
  MemorySelect memorySelect{};
  QChar focus;
  QString specialTable, start, folder, lessonName, lessonTrouble, pastCaption;
  QStringList starts, lesson, pastRuns, offered;
  QMap<NumberField, QString> numbers;
  PastRun pastRun;
  QList<std::optional<QString>> choices;
  int busyDepth = 0;
};

}  // namespace tavoli::test
