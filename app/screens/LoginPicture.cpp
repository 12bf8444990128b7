// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/screens/LoginPicture.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>

using namespace Qt::StringLiterals;

// The pictures lie in a static library, which gives them up only when asked.
static void loadArt() {
  Q_INIT_RESOURCE(art);
}

namespace tavoli {

namespace {

constexpr int tickMilliseconds = 100;
constexpr int darkBelow = 128;  ///< lightness of the palette's window colour

/// The furniture, in units of the layout.
constexpr QSize windowSize{392, 414};
constexpr QSize shelfSize{340, 294};
constexpr QSize notebookSize{546, 170};
constexpr int furnitureTop = 90;
constexpr int furnitureGap = 60;
/// How far the front of the desk lies below its back edge where the figure stands.
constexpr int deskDepth = 14;
/// The grain of the desk's wood ends this far from its sides.
constexpr int grainEnd = 8;

QString art(const QString& name) {
  return u":/art/"_s + name;
}

}  // namespace

LoginPicture::LoginPicture(QWidget* parent) : QWidget(parent) {
  setObjectName(u"Picture1"_s);
  setAttribute(Qt::WA_OpaquePaintEvent);
  loadArt();
  m_timerA.setObjectName(u"TimerA"_s);
  m_timerA.setInterval(tickMilliseconds);
  connect(&m_timerA, &QTimer::timeout, this, &LoginPicture::tick);
}

void LoginPicture::compose(const LoginLayout& layout) {
  m_layout = layout;
  m_pixelsPerUnit = layout.pixelsPerUnit(size());
  drawRoom(layout);
  m_walking = frames(u"walking.svg"_s, LoginLayout::walkingSize, SpriteWalk::walkingFrames);
  m_standing = frames(u"standing.svg"_s, LoginLayout::standingSize, SpriteWalk::standingFrames);
  m_walk = SpriteWalk();
  m_sprite = nullptr;
  m_spritePlace = QRect();
  update();
}

void LoginPicture::drawRoom(const LoginLayout& layout) {
  m_room = QPixmap(size() * devicePixelRatioF());
  m_room.setDevicePixelRatio(devicePixelRatioF());
  QPainter painter(&m_room);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(m_pixelsPerUnit, m_pixelsPerUnit);

  const bool dark = palette().color(QPalette::Window).lightness() < darkBelow;
  QSvgRenderer room(art(dark ? u"room-night.svg"_s : u"room-day.svg"_s));
  const QSizeF area = QSizeF(size()) / m_pixelsPerUnit;
  const int feet = std::min(layout.spriteTop + LoginLayout::standingSize.height(),
                            layout.motto.y() + LoginLayout::mottoSize.height());
  const QRectF desk(0, feet - deskDepth, area.width(), area.height() - (feet - deskDepth));
  room.render(&painter, u"wall"_s, QRectF(0, 0, area.width(), desk.top()));
  room.render(&painter, u"desk"_s, desk.adjusted(-grainEnd, 0, grainEnd, 0));

  // Furniture stands only where it does not run into the fields.
  const double left = layout.motto.x() - furnitureGap;
  const double right = layout.motto.x() + LoginLayout::mottoSize.width() + furnitureGap;
  const auto middle = [](double from, double to, const QSize& piece) {
    return (from + to - piece.width()) / 2;
  };
  if (area.width() - right >= windowSize.width()) {
    const QPointF place(middle(right, area.width(), windowSize), furnitureTop);
    room.render(&painter, u"window"_s, QRectF(place, windowSize));
  }
  if (left >= shelfSize.width()) {
    const QPointF place(middle(0, left, shelfSize), furnitureTop);
    room.render(&painter, u"shelf"_s, QRectF(place, shelfSize));
  }
  const double front = layout.motto.y() + LoginLayout::mottoSize.height();
  if (area.height() - front >= notebookSize.height() + furnitureGap) {
    const double x = std::max(right, middle(0, area.width(), notebookSize));
    const double y = middle(front, area.height(), notebookSize.transposed());
    if (x + notebookSize.width() <= area.width())
      room.render(&painter, u"notebook"_s, QRectF(QPointF(x, y), notebookSize));
  }
  QSvgRenderer(art(u"logo.svg"_s)).render(&painter, QRectF(layout.logo, LoginLayout::logoSize));
  QSvgRenderer(art(u"motto.svg"_s)).render(&painter, QRectF(layout.motto, LoginLayout::mottoSize));
}

std::vector<QPixmap> LoginPicture::frames(const QString& clip, const QSize& size, int count) const {
  QSvgRenderer renderer(art(clip));
  std::vector<QPixmap> pictures;
  for (int frame = 0; frame < count; ++frame) {
    QPixmap picture((QSizeF(size) * m_pixelsPerUnit * devicePixelRatioF()).toSize());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    renderer.render(&painter, u"frame%1"_s.arg(frame), picture.rect());
    painter.end();
    picture.setDevicePixelRatio(devicePixelRatioF());
    pictures.push_back(picture);
  }
  return pictures;
}

void LoginPicture::tick() {
  const SpriteStep step = m_walk.tick();
  const bool walking = step.clip == SpriteStep::Clip::Walking;
  const QSize size = walking ? LoginLayout::walkingSize : LoginLayout::standingSize;
  m_sprite = walking ? &m_walking[step.frame] : &m_standing[step.frame];
  const QRect before = m_spritePlace;
  m_spritePlace = inPixels(QRectF(QPointF(step.left, m_layout.spriteTop), size));
  update(before.united(m_spritePlace));
}

QRect LoginPicture::inPixels(const QRectF& units) const {
  return {(units.topLeft() * m_pixelsPerUnit).toPoint(), (units.size() * m_pixelsPerUnit).toSize()};
}

void LoginPicture::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.setClipRect(event->rect());
  painter.drawPixmap(0, 0, m_room);
  if (m_sprite) painter.drawPixmap(m_spritePlace.topLeft(), *m_sprite);
}

void LoginPicture::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  m_timerA.start();
}

void LoginPicture::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  m_timerA.stop();
}

void LoginPicture::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && !m_room.isNull()) compose(m_layout);
}

}  // namespace tavoli
