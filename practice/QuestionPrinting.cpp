#include "practice/QuestionPrinting.h"

#include <QFileInfo>

#include "practice/QuestionSheet.h"
#include "system/Clock.h"
#include "system/Paper.h"

namespace tavoli {

QStringList printRequests(QuestionRequests& requests, const LearnerFiles& learner, Paper& paper,
                          const Clock& clock) {
  if (requests.items().empty()) return {};
  const QDateTime now = clock.now();
  const QuestionSheet sheet(requests.items(), learner.userId, now);
  QStringList notices;
  if (sheet.unpaired()) notices.append(QStringLiteral("下線高輝度エラー"));
  const QString title = QStringLiteral("Tavoli 問題印刷");
  const DrawDocument draw = [&sheet](PageSurface& page) { sheet.draw(page); };
  if (paper.print(title, draw)) {
    requests.clear();
    return notices;
  }
  const QString path = QFileInfo(learner.dbFileWork).path() + QStringLiteral("/TavoPrint") +
                       learner.userId + now.toString(QStringLiteral("-yyyyMMdd-HHmmss'.pdf'"));
  const bool written = paper.writePdf(path, title, draw);
  if (written) requests.clear();
  notices.append(
      (written ? QStringLiteral("プリンターで印刷できないので、問題を %1 に PDF で保存しました。")
               : QStringLiteral(
                     "問題を印刷できず、%1 にも保存できませんでした。練習結果は保存してあります。"))
          .arg(path));
  return notices;
}

}  // namespace tavoli
