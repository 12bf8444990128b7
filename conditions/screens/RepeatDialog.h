// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBoxLayout>
#include <QDialog>
#include <QSpinBox>

namespace tavoli {

/// A number of repeats that the learner sets.
struct RepeatValue {
  QString caption;
  int& field;  ///< changed by OK only
  int most;    ///< 1 is the least
  int standard;
};

/// A dialog for two numbers of repeats, that of words and that of sentences.
class RepeatDialog : public QDialog {
  Q_OBJECT
 public:
  RepeatDialog(const QString& title, const RepeatValue& word, const RepeatValue& sentence,
               QWidget* parent = nullptr);

  void accept() override;

 private:
  /// The group of a value; `number`, from 1, goes into the names of its controls.
  QSpinBox* addGroup(QBoxLayout* column, const RepeatValue& value, int number);

  RepeatValue m_word;
  RepeatValue m_sentence;
  QSpinBox* m_wordBox;
  QSpinBox* m_sentenceBox;
};

}  // namespace tavoli
