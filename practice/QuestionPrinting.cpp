#include "practice/QuestionPrinting.h"

#include <QFileInfo>

#include "practice/QuestionSheet.h"
#include "system/Clock.h"
#include "system/Dialogs.h"
#include "system/Paper.h"

namespace tavoli {

void printRequests(QuestionRequests& requests, const LearnerFiles& learner, Paper& paper,
                   const Clock& clock, Dialogs& dialogs) {
  if (requests.items().empty()) return;
  const QDateTime now = clock.now();
  const QuestionSheet sheet(requests.items(), learner.userId, now);
  if (sheet.unpaired()) dialogs.show(QStringLiteral("下線高輝度エラー"));
  const QString title = QStringLiteral("Tavoli 問題印刷");
  const DrawDocument draw = [&sheet](PageSurface& page) { sheet.draw(page); };
  if (paper.print(title, draw)) {
    requests.clear();
    return;
  }
  const QString path = QFileInfo(learner.dbFileWork).path() + QStringLiteral("/TavoPrint") +
                       learner.userId + now.toString(QStringLiteral("-yyyyMMdd-HHmmss'.pdf'"));
  if (paper.writePdf(path, title, draw)) {
    requests.clear();
    dialogs.show(QStringLiteral("プリンターで印刷できないので、問題を %1 に PDF で保存しました。")
                     .arg(path));
    return;
  }
  dialogs.show(
      QStringLiteral("問題を印刷できず、%1 にも保存できませんでした。練習結果は保存してあります。")
          .arg(path));
}

}  // namespace tavoli
