// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace tavoli {

class PageSurface;

/// Draws a whole document, from its first sheet on.
using DrawDocument = std::function<void(PageSurface&)>;

/// Where printed things go.
class Paper {
 public:
  virtual ~Paper() = default;
  virtual bool hasPrinter() const = 0;
  /// Prints on the default printer, A4. False when there is none or it refuses the document.
  [[nodiscard]] virtual bool print(const QString& title, const DrawDocument& draw) = 0;
  /// Writes the document as a PDF file, A4, in the place of what is there. False when that cannot
  /// be done; the file is then what it was.
  [[nodiscard]] virtual bool writePdf(const QString& path, const QString& title,
                                      const DrawDocument& draw) = 0;
};

}  // namespace tavoli
