// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>

#include "practice/ReviewScreen.h"
#include "practice/screens/AnswerWindow.h"
#include "practice/screens/FunctionKeys.h"

namespace tavoli {

class PracticeLoop;
class ReviewDrill;

/// The review screen.
class TAVO4 final : public AnswerWindow<ReviewScreen> {
  Q_OBJECT
 public:
  explicit TAVO4(QWidget* parent = nullptr);

  /// Keys go to the review of `loop` from now on.
  void connectTo(PracticeLoop& loop) { m_loop = &loop; }

  void beginReview(const QString& course) override;
  void endReview() override;
  void awaitConfirmation(bool awaited) override;

 Q_SIGNALS:
  /// The window is to take the place of the practice.
  void begun();
  /// The practice is to come back.
  void over();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void connectAnswer();
  void buildMenu();
  void setRepeats();
  /// The review, or nothing while none goes on.
  ReviewDrill* review() const;

  PracticeLoop* m_loop = nullptr;
  QTimer m_seconds;

  FunctionKeys* m_keys;
};

}  // namespace tavoli
