// SPDX-License-Identifier: GPL-3.0-or-later

#include "progress/ReportPrinting.h"

#include "system/Dialogs.h"

using namespace Qt::StringLiterals;

namespace tavoli {

void printOrSave(Paper& paper, Dialogs& dialogs, const QString& title, const DrawDocument& draw,
                 const std::function<QString()>& choosePdf) {
  if (paper.hasPrinter()) {
    if (paper.print(title, draw)) return;
    dialogs.show(u"プリンタで印刷できませんでした。代わりにPDFファイルに保存できます。"_s);
  }
  const QString path = choosePdf();
  if (path.isEmpty()) return;
  const QString outcome = paper.writePdf(path, title, draw)
                              ? u"%1 に保存しました。"_s
                              : u"%1 に保存できませんでした。別の場所を選んで下さい。"_s;
  dialogs.show(outcome.arg(path));
}

}  // namespace tavoli
