// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include "app/LoginLayout.h"
#include "app/SpriteWalk.h"

namespace tavoli {

/// The picture behind the login: a room with the two name plates, and the figure that walks in it.
/// It carries no information.
class LoginPicture final : public QWidget {
 public:
  explicit LoginPicture(QWidget* parent = nullptr);

  /// Draws the room for this layout and size, and starts the figure's walk from its beginning.
  void compose(const LoginLayout& layout);
  /// Pixels per unit of the layout, as last composed.
  double pixelsPerUnit() const { return m_pixelsPerUnit; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void drawRoom(const LoginLayout& layout);
  std::vector<QPixmap> frames(const QString& clip, const QSize& size, int count) const;
  void tick();
  QRect inPixels(const QRectF& units) const;

  LoginLayout m_layout;
  double m_pixelsPerUnit = 1;
  QPixmap m_room;
  std::vector<QPixmap> m_walking;
  std::vector<QPixmap> m_standing;
  SpriteWalk m_walk;
  const QPixmap* m_sprite = nullptr;
  QRect m_spritePlace;
  QTimer m_timerA{this};
};

}  // namespace tavoli
