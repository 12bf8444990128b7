#pragma once

#include <QStringList>

#include "system/PageSurface.h"
#include "system/Paper.h"

namespace tavoli::test {

/// Sheets of A4 that remember what was drawn. A full-width character is as wide as the font is
/// high, any other half as wide.
class RecordingPages final : public PageSurface {
 public:
  struct Piece {
    int page;
    double x, y;
    QString text;
    PageFont font;
  };

  double width() const override { return 11906; }
  double height() const override { return 16838; }
  void setFont(const PageFont& chosen) override { font = chosen; }
  double textWidth(const QString& text) const override {
    double halves = 0;
    for (const QChar c : text) halves += c.unicode() < 0x1000 || c.unicode() >= 0xFF61 ? 1 : 2;
    return halves * font.points * 10;
  }
  double lineHeight() const override { return font.points * 20; }
  void drawText(double x, double y, const QString& text) override {
    pieces.push_back({pages, x, y, text, font});
  }
  void drawLine(double, double, double, double) override { ++rules; }
  void drawPicture(const QRectF&, const QImage&) override {}
  void newPage() override { ++pages; }

  PageFont font;
  std::vector<Piece> pieces;
  int pages = 1;
  int rules = 0;
};

/// A printer and a disk that take a document or not.
class FakePaper final : public Paper {
 public:
  bool hasPrinter() const override { return prints; }
  bool print(const QString&, const DrawDocument& draw) override {
    if (prints) draw(printed);
    return prints;
  }
  bool writePdf(const QString& path, const QString&, const DrawDocument& draw) override {
    if (writes) draw(written);
    pdfPath = path;
    return writes;
  }

  bool prints = true;
  bool writes = true;
  RecordingPages printed, written;
  QString pdfPath;
};

}  // namespace tavoli::test
