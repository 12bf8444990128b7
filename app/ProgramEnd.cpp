// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/ProgramEnd.h"

#include "home/WorkingCopy.h"
#include "practice/PracticeRun.h"
#include "system/Dialogs.h"

namespace tavoli {

RunOver ProgramEnd::endRun(PracticeRun& run) {
  RunOver over;
  over.toConditions = run.loop().backToConditions();
  const std::optional<StoredRun> stored =
      run.close([this](const QStringList& notices, const QString& question) {
        tell(notices);
        return m_dialogs.ask(question);
      });
  if (!stored) return over;
  over.stored = true;
  m_module.conditions = stored->conditions;
  m_module.progress = stored->progress;
  tell(stored->notices);
  using Texts = WorkingCopy::Texts;
  m_workingCopy.carryHome(over.toConditions ? Texts::Stay : Texts::Go);
  tell(run.printRequests());
  return over;
}

void ProgramEnd::leave() {
  m_workingCopy.leave();
}

void ProgramEnd::tell(const QStringList& notices) {
  for (const QString& notice : notices) m_dialogs.show(notice);
}

}  // namespace tavoli
