// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeyEvent>
#include <QLineEdit>
#include <QWidget>

#include <optional>

#include "lookup/LookUp.h"
#include "lookup/screens/WordView.h"

namespace tavoli {

/// A look-up pane of the practice screen: the box of one dictionary and the entry it finds.
class LookUpPane final : public QWidget {
  Q_OBJECT
 public:
  /// `index` counts the panes from 0 and ends the names of the controls; `dictionary` must outlive
  /// the pane.
  LookUpPane(int index, const QString& heading, LookUp& dictionary, QWidget* parent = nullptr);

  /// Puts a word into the box and shows its entry.
  void setWord(const QString& word);

 Q_SIGNALS:
  /// An English word of the entry was clicked, selected, or picked with F11.
  void wordClicked(const QString& word);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* buildUpDown(int index, const QString& heading);
  void stepEntry(bool back);
  /// Shows what a look-up gave; nothing leaves the pane as it is.
  void showResult(const std::optional<MarkedText>& entry);
  bool keyPressed(const QObject* watched, const QKeyEvent& event);

  LookUp& m_dictionary;
  QLineEdit* m_word;
  WordView* m_entry;
};

}  // namespace tavoli
