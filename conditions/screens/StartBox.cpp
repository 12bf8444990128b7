// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/screens/StartBox.h"

#include <QCompleter>
#include <QFocusEvent>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>
#include <numeric>
#include <utility>

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
  lineEdit()->installEventFilter(this);
}

void StartBox::nameParts(const QString& name) {
  for (QWidget* part : std::initializer_list<QWidget*>{this, lineEdit(), view()})
    part->setAccessibleName(name);
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
    lineEdit()->setCursorPosition(0);
  }
  const int margin = view()->verticalScrollBar()->sizeHint().width() + 2 * view()->frameWidth();
  const int room = screen()->availableSize().width() * 9 / 10;
  view()->setMinimumWidth(std::min(widestEntry() + margin, room));
  QComboBox::showPopup();
}

int StartBox::widestEntry() const {
  // Of tens of thousands of entries only the longest is measured; Japanese is twice as wide.
  const auto length = [](const QString& entry) {
    return std::accumulate(entry.begin(), entry.end(), 0,
                           [](int sum, QChar c) { return sum + (c.unicode() < 0x1000 ? 1 : 2); });
  };
  const QStringList entries = m_entries.stringList();
  const auto longest =
      std::max_element(entries.begin(), entries.end(),
                       [&](const QString& a, const QString& b) { return length(a) < length(b); });
  if (longest == entries.end()) return 0;
  const QFontMetrics metrics(view()->font());
  return metrics.horizontalAdvance(*longest) + 2 * metrics.averageCharWidth();
}

void StartBox::focusInEvent(QFocusEvent* event) {
  QComboBox::focusInEvent(event);
  m_clickedInto = event->reason() == Qt::MouseFocusReason;
}

bool StartBox::eventFilter(QObject* watched, QEvent* event) {
  const bool released = watched == lineEdit() && event->type() == QEvent::MouseButtonRelease;
  // Selected behind the click, which puts the caret somewhere: the first key replaces the text.
  if (released && std::exchange(m_clickedInto, false) && !lineEdit()->hasSelectedText())
    QMetaObject::invokeMethod(lineEdit(), &QLineEdit::selectAll, Qt::QueuedConnection);
  return QComboBox::eventFilter(watched, event);
}

}  // namespace tavoli
