#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "system/PageSurface.h"
#include "system/screens/PagedPaper.h"
#include "tests/support/Pdf.h"

namespace tavoli {
namespace {

class PagedPaperTest : public testing::Test {
 protected:
  QTemporaryDir folder;
  QString path = folder.filePath(QStringLiteral("out.pdf"));
  PagedPaper paper;
};

TEST_F(PagedPaperTest, DrawsInTwipsFromTheCornerOfTheSheet) {
  double width = 0;
  double height = 0;
  double textWidth = 0;
  const bool written = paper.writePdf(path, QStringLiteral("題"), [&](PageSurface& page) {
    width = page.width();
    height = page.height();
    page.setFont({PageFont::Face::Gothic, 10});
    textWidth = page.textWidth(QStringLiteral("日本語の文"));
    page.drawText(1440, 2880, QStringLiteral("日本語の文"));
    QImage picture(10, 10, QImage::Format_RGB32);
    picture.fill(Qt::red);
    page.drawPicture(QRectF(0, 0, 1000, 1000), picture);
    page.drawLine(0, 0, 100, 100);
    page.newPage();
    page.drawText(100, 100, QStringLiteral("second"));
  });
  ASSERT_TRUE(written);
  // A4 is 210 x 297 mm.
  EXPECT_NEAR(width, 210 / 25.4 * 1440, 15);
  EXPECT_NEAR(height, 297 / 25.4 * 1440, 15);
  EXPECT_NEAR(textWidth, 5 * 10 * 20, 1) << "five full-width characters of ten points";
  const QString boxes = test::textOfPdf(path, {QStringLiteral("-bbox")});
  const QRegularExpression word(
      QStringLiteral(R"re(xMin="([\d.]+)" yMin="([\d.]+)".*>日本語の文<)re"));
  const QRegularExpressionMatch found = word.match(boxes);
  ASSERT_TRUE(found.hasMatch()) << qPrintable(boxes);
  EXPECT_NEAR(found.captured(1).toDouble(), 72, 1);
  EXPECT_NEAR(found.captured(2).toDouble(), 144, 3);
  EXPECT_TRUE(test::textOfPdf(path, {QStringLiteral("-f"), QStringLiteral("2")})
                  .contains(QStringLiteral("second")));
}

TEST_F(PagedPaperTest, AFileThatCannotBeWrittenIsSaidSo) {
  EXPECT_FALSE(paper.writePdf(folder.filePath(QStringLiteral("gone/out.pdf")), QString(),
                              [](PageSurface&) {}));
}

}  // namespace
}  // namespace tavoli
