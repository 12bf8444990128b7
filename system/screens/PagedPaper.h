// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "system/Paper.h"

namespace tavoli {

/// The printers of this machine, and PDF files. Needs a running application with fonts.
class PagedPaper final : public Paper {
 public:
  bool hasPrinter() const override;
  [[nodiscard]] bool print(const QString& title, const DrawDocument& draw) override;
  [[nodiscard]] bool writePdf(const QString& path, const QString& title,
                              const DrawDocument& draw) override;
};

}  // namespace tavoli
