#pragma once

#include <QMainWindow>
#include <QPushButton>

#include <functional>

#include "conditions/ConditionsRules.h"
#include "conditions/ConditionsScreen.h"

namespace tavoli {

class ChoicePanel;
class LessonPanel;
class NumbersPanel;
class PastPanel;

/// The conditions screen.
class TAVO2 final : public QMainWindow, public ConditionsScreen {
  Q_OBJECT
 public:
  /// What the window works on: the learner's choices in the state that the screens share.
  struct Shared {
    const LearnerFiles& learner;
    CourseChoice& course;
    PracticeConditions& conditions;
  };

  TAVO2(const Shared& shared, const ConditionsServices& services);
  ~TAVO2() override;

  /// Called when Next found everything right, with the key at which the run starts; it starts the
  /// run, and hides this window if it can.
  std::function<void(const QString& startKey)> next;
  /// Called when the learner ends the program here.
  std::function<void()> leave;

  /// To be called before every showing. False when the database cannot be read.
  bool enter() { return m_rules.enter(); }

  void showCourse(Course COURSE, const QString& specialTable) override;
  void showMethod(SelMethod selMethod) override;
  void showStartMode(StartMode startMode) override;
  void listStarts(const QStringList& entries) override;
  void showStart(const QString& text) override;
  void showMemory(MemorySelect memorySelect) override;
  void showNumber(NumberField field, const QString& text) override;
  void showFolder(const QString& folder) override;
  void showLessonName(const QString& name) override;
  void showLesson(const QStringList& lines, const QString& trouble) override;
  void listPastRuns(const QStringList& entries) override;
  void showPastRun(const QString& caption, const PastRun& run) override;
  std::optional<QString> chooseSpecialTable(const QStringList& tables,
                                            const QString& present) override;
  void focusNext() override;
  void focusLessonName() override;
  void focusStart() override;
  void setBusy(bool busy) override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  ConditionsRules m_rules;
  ChoicePanel* m_choices;
  LessonPanel* m_lesson;
  NumbersPanel* m_numbers;
  PastPanel* m_past;
  QPushButton* m_command1;
};

}  // namespace tavoli
