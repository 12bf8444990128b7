// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBoxLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include "conditions/screens/OptionSet.h"
#include "conditions/screens/StartBox.h"
#include "data/Codes.h"

namespace tavoli {

class ConditionsRules;

/// What is practised: course, method, start and memory states.
class ChoicePanel final : public QWidget {
  Q_OBJECT
 public:
  ChoicePanel(ConditionsRules& rules, QWidget* parent);

  void showCourse(Course COURSE, const QString& specialTable);
  void showMethod(SelMethod selMethod);
  void showStartMode(StartMode startMode);
  void showMemory(MemorySelect memorySelect) { m_memory.mark(indexOf(memorySelect)); }

  StartBox& start() { return *m_start; }
  QGroupBox& courses() { return *m_courses; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QGroupBox* addGroup(const QString& title);
  void addCourses();
  void addMethods();
  void addStarts();
  void addMemories();
  void colourLesson();

  ConditionsRules& m_rules;
  QBoxLayout* m_column;
  QGroupBox* m_courses;
  OptionSet m_course;
  QLineEdit* m_special;
  QGroupBox* m_methods;
  OptionSet m_method;
  QLabel* m_lessons;
  SelMethod m_shownMethod{};
  QGroupBox* m_starts;
  OptionSet m_startMode;
  StartBox* m_start;
  QGroupBox* m_memories;
  OptionSet m_memory;
};

}  // namespace tavoli
