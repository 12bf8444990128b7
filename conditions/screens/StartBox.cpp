#include "conditions/screens/StartBox.h"

#include <QCompleter>
#include <QLineEdit>
#include <QListView>

#include <algorithm>

namespace tavoli {

StartBox::StartBox(QWidget* parent) : QComboBox(parent) {
  constexpr int shownCharacters = 12;
  setEditable(true);
  setInsertPolicy(NoInsert);
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(shownCharacters);
  auto* rows = new QListView(this);
  rows->setUniformItemSizes(true);
  setView(rows);
  setModel(&m_entries);
  completer()->setCaseSensitivity(Qt::CaseInsensitive);
}

void StartBox::list(const QStringList& entries) {
  const QSignalBlocker quiet(this);
  m_entries.setStringList(entries);
}

void StartBox::showText(const QString& text) {
  const QSignalBlocker quiet(this);
  setEditText(text);
  lineEdit()->setCursorPosition(0);
}

void StartBox::showPopup() {
  const QString typed = currentText();
  const QStringList entries = m_entries.stringList();
  const auto match = std::find_if(entries.begin(), entries.end(), [&](const QString& entry) {
    return entry.startsWith(typed, Qt::CaseInsensitive);
  });
  if (match != entries.end()) {
    const QSignalBlocker quiet(this);
    setCurrentIndex(static_cast<int>(std::distance(entries.begin(), match)));
    setEditText(typed);
  }
  QComboBox::showPopup();
}

}  // namespace tavoli
