// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QButtonGroup>
#include <QRadioButton>
#include <QString>

#include <functional>

namespace tavoli {

/// Option buttons of which one is marked. They count from 0.
class OptionSet {
 public:
  /// `chosen` is called when the learner marks another one.
  OptionSet(const QString& name, QWidget* parent, std::function<void(int)> chosen);

  /// `accessibleName` says what the caption alone does not.
  QRadioButton* add(const QString& caption, const QString& accessibleName = {});
  QRadioButton* button(int index) const;
  /// Marks an option without calling `chosen`; none for a number that has no option.
  void mark(int index);
  /// Marks an option as the learner does.
  void click(int index) const { button(index)->click(); }

 private:
  QString m_name;
  QWidget* m_parent;
  QButtonGroup* m_buttons;
  /// The Tab key comes to the marked option, as the arrow keys go on from there.
  void placeTabStop() const;

  int m_marked = -1;
};

}  // namespace tavoli
