// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>

#include <optional>

#include "practice/PracticeScreen.h"
#include "practice/screens/AnswerWindow.h"

namespace tavoli {

class Clock;
class CountsFrame;
class FunctionKeys;
class LogView;
class MarkedView;
class PracticeLoop;
class PracticeMenus;
class StatusPanels;
struct DrillKey;

/// The practice screen.
class TAVO3 final : public AnswerWindow<PracticeScreen> {
  Q_OBJECT
 public:
  explicit TAVO3(QWidget* parent = nullptr);

  /// Keys go to `loop` from now on, and its clock ticks.
  void connectTo(PracticeLoop& loop, const Clock& clock);
  /// A review has ended. F11 ends its items too, and once too often it would mark the item that
  /// follows: for a moment it does nothing.
  void resumeFromReview();

  void showCaption(const QString& text) override;
  void showSource(const QString& text) override;
  void showMiniTest(const MarkedText& text) override;
  void enableKey(FunctionKey key, bool enabled) override;
  void showComparison(int choice) override;
  void showTimeUpSound(int choice) override;
  void showLog(const QStringList& runLog, bool shown) override;
  void showCounts(const RunCounts& counts) override;
  void showStatus(StatusPanel panel, const QString& text) override;
  void awaitConfirmation(bool awaited) override;
  void close() override;

 Q_SIGNALS:
  /// The end of the run was confirmed, and the window is hidden.
  void closed();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void buildAreas();
  void connectAnswer();
  void buildMenus();
  void arrange();
  /// The loop, or nothing when none is connected, its run is over, or a review has the keys.
  PracticeLoop* loop() const;
  void pressKey(const DrillKey& key, Pressed pressed);
  bool justReviewed() const;
  void answerClicked();
  void setRepeats();

  PracticeLoop* m_loop = nullptr;
  const Clock* m_clock = nullptr;
  std::optional<qint64> m_reviewEnd;  ///< of the last review, in milliseconds
  QTimer m_seconds;

  CountsFrame* m_counts;
  MarkedView* m_miniTest;
  LogView* m_log;
  FunctionKeys* m_keys;
  PracticeMenus* m_menus;
  StatusPanels* m_status;
};

}  // namespace tavoli
