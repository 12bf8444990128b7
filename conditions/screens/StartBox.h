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

  void showPopup() override;

 private:
  QStringListModel m_entries;
};

}  // namespace tavoli
