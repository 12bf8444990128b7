#include "progress/screens/TAVOstate.h"

#include <QCloseEvent>
#include <QLabel>
#include <QLayout>
#include <QPushButton>

#include <utility>

namespace tavoli {

TAVOstate::TAVOstate(const QString& userId, std::function<void()> next, std::function<void()> leave,
                     QWidget* parent)
    : QMainWindow(parent), m_next(std::move(next)), m_leave(std::move(leave)) {
  setWindowTitle(QStringLiteral("学習の進捗 - Tavoli"));
  auto* centre = new QWidget(this);
  auto* greeting =
      new QLabel(QStringLiteral("ユーザーID %1 でログインしました。").arg(userId), centre);
  auto* next_ = new QPushButton(QStringLiteral("次へ"), centre);
  next_->setObjectName(QStringLiteral("Command1"));
  next_->setDefault(true);
  next_->setAutoDefault(true);
  connect(next_, &QPushButton::clicked, this, [this] {
    m_leave = nullptr;
    std::exchange(m_next, nullptr)();
  });
  auto* column = new QVBoxLayout(centre);
  column->addStretch(1);
  column->addWidget(greeting, 0, Qt::AlignCenter);
  column->addStretch(1);
  column->addWidget(next_, 0, Qt::AlignRight);
  setCentralWidget(centre);
  resize(fontMetrics().height() * 55, fontMetrics().height() * 38);
  next_->setFocus();
}

void TAVOstate::closeEvent(QCloseEvent* event) {
  event->accept();
  if (m_leave) std::exchange(m_leave, nullptr)();
}

}  // namespace tavoli
