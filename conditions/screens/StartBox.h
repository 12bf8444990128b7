// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QStringListModel>

namespace tavoli {

/// The box of the specified start: a long list, and a text that may be typed. Typing goes to the
/// first entry that begins so.
class StartBox final : public QComboBox {
  Q_OBJECT
 public:
  explicit StartBox(QWidget* parent = nullptr);

  /// Neither is reported as an edit.
  void list(const QStringList& entries);
  void showText(const QString& text);

  /// The name of the box and its parts for those who cannot see them.
  void nameParts(const QString& name);

  /// As wide as its texts, and at the entry that is typed.
  void showPopup() override;

 protected:
  void focusInEvent(QFocusEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  int widestEntry() const;

  QStringListModel m_entries;
  bool m_clickedInto = false;  ///< the focus has come with the mouse button that is down
};

}  // namespace tavoli
