#pragma once

#include <QButtonGroup>
#include <QRadioButton>
#include <QString>

#include <functional>

namespace tavoli {

/// Option buttons of which one is marked; the first has the code "0".
class OptionSet {
 public:
  /// `chosen` is called when the learner marks another one.
  OptionSet(const QString& name, QWidget* parent, std::function<void(QChar)> chosen);

  /// `accessibleName` says what the caption alone does not.
  QRadioButton* add(const QString& caption, const QString& accessibleName = {});
  QRadioButton* button(QChar code) const;
  /// Marks an option without calling `chosen`; none for an unknown code.
  void mark(QChar code);
  /// Marks an option as the learner does.
  void click(QChar code) const { button(code)->click(); }

 private:
  QString m_name;
  QWidget* m_parent;
  QButtonGroup* m_buttons;
  /// The Tab key comes to the marked option, as the arrow keys go on from there.
  void placeTabStop() const;

  QChar m_marked;
};

}  // namespace tavoli
