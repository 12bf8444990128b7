// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/QuestionPrinting.h"

#include <QFileInfo>

#include "practice/QuestionSheet.h"
#include "system/Clock.h"
#include "system/Paper.h"

using namespace Qt::StringLiterals;

namespace tavoli {

QStringList printRequests(QuestionRequests& requests, const LearnerFiles& learner, Paper& paper,
                          const Clock& clock) {
  if (requests.items().empty()) return {};
  const QDateTime now = clock.now();
  const QuestionSheet sheet(requests.items(), learner.userId, now);
  QStringList notices;
  if (sheet.unpaired()) notices.append(u"下線高輝度エラー"_s);
  const QString title = u"Tavoli 問題印刷"_s;
  const DrawDocument draw = [&sheet](PageSurface& page) { sheet.draw(page); };
  if (paper.print(title, draw)) {
    requests.clear();
    return notices;
  }
  const QString path = QFileInfo(learner.dbFileWork).path() + u"/TavoPrint"_s + learner.userId +
                       now.toString(u"-yyyyMMdd-HHmmss'.pdf'"_s);
  const bool written = paper.writePdf(path, title, draw);
  if (written) requests.clear();
  notices.append(
      (written ? u"プリンターで印刷できないので、問題を %1 に PDF で保存しました。"_s
               : u"問題を印刷できず、%1 にも保存できませんでした。練習結果は保存してあります。"_s)
          .arg(path));
  return notices;
}

}  // namespace tavoli
