// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollBar>
#include <QStringList>
#include <QTextEdit>

namespace tavoli {

class WordView;

/// The log of the run. Its scroll bar counts lines and says from which one the log is shown.
class LogView final : public QWidget {
  Q_OBJECT
 public:
  explicit LogView(QWidget* parent = nullptr);

  /// Shows the log with its newest lines in view, or empties and hides the area.
  void showLog(const QStringList& runLog, bool shown);

 Q_SIGNALS:
  /// An English word of the log was clicked or selected.
  void wordClicked(const QString& word);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void showFrom(int line);

  WordView* m_text;
  QScrollBar* m_lines;
};

}  // namespace tavoli
