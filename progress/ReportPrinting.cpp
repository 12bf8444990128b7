#include "progress/ReportPrinting.h"

#include "system/Dialogs.h"

namespace tavoli {

void printOrSave(Paper& paper, Dialogs& dialogs, const QString& title, const DrawDocument& draw,
                 const std::function<QString()>& choosePdf) {
  if (paper.hasPrinter()) {
    if (paper.print(title, draw)) return;
    dialogs.show(
        QStringLiteral("プリンタで印刷できませんでした。代わりにPDFファイルに保存できます。"));
  }
  const QString path = choosePdf();
  if (path.isEmpty()) return;
  const QString outcome =
      paper.writePdf(path, title, draw)
          ? QStringLiteral("%1 に保存しました。")
          : QStringLiteral("%1 に保存できませんでした。別の場所を選んで下さい。");
  dialogs.show(outcome.arg(path));
}

}  // namespace tavoli
