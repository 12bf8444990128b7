// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QStringList>

class QComboBox;

namespace tavoli {

/// A dialog in which one entry of a list is chosen and nothing can be typed.
class ChoiceDialog final : public QDialog {
 public:
  /// What is asked, and from what.
  struct Choice {
    QString title;
    QString label;
    QStringList entries;
    /// The entry that is shown at first, even where it is not in the list; empty for the list's
    /// first.
    QString present;
  };

  explicit ChoiceDialog(const Choice& choice, QWidget* parent = nullptr);

  /// The entry on show; empty when the list is.
  QString chosen() const;

 private:
  QString m_present;
  QComboBox* m_entries;
};

}  // namespace tavoli
