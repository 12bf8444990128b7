#pragma once

#include <QComboBox>
#include <QFormLayout>
#include <QMainWindow>

#include <functional>

#include "conditions/PracticeConditions.h"

namespace tavoli {

/// The conditions screen.
class TAVO2 final : public QMainWindow {
  Q_OBJECT
 public:
  /// `next` is called at every press of Next; it starts the run, and hides this window if it can.
  /// `leave` is called when the learner ends the program here.
  TAVO2(std::function<void()> next, std::function<void()> leave, QWidget* parent = nullptr);

  /// Shows this run's conditions and offers those of earlier runs, given as stored lines.
  void showConditions(const CourseChoice& course, const PracticeConditions& conditions,
                      const QStringList& pastConditions);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void showPastRun(int index);

  std::function<void()> m_next;
  std::function<void()> m_leave;
  QStringList m_pastConditions;
  QComboBox* m_past;
  QFormLayout* m_present;
  QFormLayout* m_before;
};

}  // namespace tavoli
