#pragma once

#include <QMainWindow>

#include <functional>

namespace tavoli {

/// The progress screen.
class TAVOstate final : public QMainWindow {
  Q_OBJECT
 public:
  /// `next` is called when the learner goes on, `leave` when the window is closed instead.
  TAVOstate(const QString& userId, std::function<void()> next, std::function<void()> leave,
            QWidget* parent = nullptr);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  std::function<void()> m_next;
  std::function<void()> m_leave;
};

}  // namespace tavoli
