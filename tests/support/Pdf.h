#pragma once

#include <QProcess>
#include <QStringList>

namespace tavoli::test {

/// The texts of a PDF file as they stand on its pages, line by line.
inline QString textOfPdf(const QString& path, const QStringList& options = {}) {
  QProcess reader;
  reader.start(QStringLiteral("pdftotext"),
               QStringList{QStringLiteral("-enc"), QStringLiteral("UTF-8")} + options +
                   QStringList{path, QStringLiteral("-")});
  reader.waitForFinished();
  return QString::fromUtf8(reader.readAllStandardOutput());
}

}  // namespace tavoli::test
