// SPDX-License-Identifier: GPL-3.0-or-later

#include "system/screens/PagedPaper.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>

#include "system/PageSurface.h"
#include "system/TypeFaces.h"

namespace tavoli {

namespace {

constexpr double twipsPerInch = 1440;
constexpr double twipsPerPoint = 20;
constexpr double lineWidth = 10;

/// Sheets of a Qt device, with the painter turned to twips.
class PaintedPages final : public PageSurface {
 public:
  explicit PaintedPages(QPagedPaintDevice& device) : m_device(device) {
    if (!m_painter.begin(&device)) return;
    m_painter.scale(device.logicalDpiX() / twipsPerInch, device.logicalDpiY() / twipsPerInch);
    m_painter.setRenderHint(QPainter::SmoothPixmapTransform);
    m_painter.setPen(QPen(Qt::black, lineWidth));
    setFont(PageFont());
  }

  bool isActive() const { return m_painter.isActive(); }
  bool failed() const { return m_failed; }
  bool end() { return m_painter.end(); }

  double width() const override { return size().width() * twipsPerPoint; }
  double height() const override { return size().height() * twipsPerPoint; }

  void setFont(const PageFont& font) override {
    QFont type;
    type.setFamilies(familiesOf(font.face == PageFont::Face::Mincho ? TypeFace::PrintedMincho
                                                                    : TypeFace::PrintedGothic));
    // One unit of the painter is a twip.
    type.setPixelSize(qRound(font.points * twipsPerPoint));
    type.setBold(font.bold);
    type.setUnderline(font.underline);
    type.setHintingPreference(QFont::PreferNoHinting);
    m_painter.setFont(type);
    m_metrics = QFontMetricsF(type);
  }

  double textWidth(const QString& text) const override { return m_metrics.horizontalAdvance(text); }
  double lineHeight() const override { return m_metrics.height(); }

  void drawText(double x, double y, const QString& text) override {
    m_painter.drawText(QPointF(x, y + m_metrics.ascent()), text);
  }
  void drawLine(double fromX, double fromY, double toX, double toY) override {
    m_painter.drawLine(QPointF(fromX, fromY), QPointF(toX, toY));
  }
  void drawPicture(const QRectF& place, const QImage& picture) override {
    m_painter.drawImage(place, picture);
  }
  void newPage() override { m_failed = !m_device.newPage() || m_failed; }

 private:
  QSizeF size() const { return m_device.pageLayout().fullRect(QPageLayout::Point).size(); }

  QPagedPaintDevice& m_device;
  QPainter m_painter;
  QFontMetricsF m_metrics = QFontMetricsF(QFont());
  bool m_failed = false;
};

bool drawOn(QPagedPaintDevice& device, const DrawDocument& draw) {
  PaintedPages pages(device);
  if (!pages.isActive()) return false;
  draw(pages);
  return pages.end() && !pages.failed();
}

}  // namespace

bool PagedPaper::hasPrinter() const {
  return !QPrinterInfo::defaultPrinter().isNull();
}

bool PagedPaper::print(const QString& title, const DrawDocument& draw) {
  if (!hasPrinter()) return false;
  QPrinter printer(QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
  printer.setDocName(title);
  printer.setPageSize(QPageSize(QPageSize::A4));
  // Positions count from the edge of the sheet.
  printer.setFullPage(true);
  return drawOn(printer, draw) && printer.printerState() != QPrinter::Error;
}

bool PagedPaper::writePdf(const QString& path, const QString& title, const DrawDocument& draw) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return false;
  bool drawn = false;
  {
    constexpr int resolution = 600;
    QPdfWriter writer(&file);
    writer.setTitle(title);
    writer.setResolution(resolution);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF());
    drawn = drawOn(writer, draw);
  }
  return drawn && file.error() == QFileDevice::NoError && file.commit();
}

}  // namespace tavoli
