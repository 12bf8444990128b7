#include "practice/DamageGuard.h"

#include "system/Dialogs.h"

namespace tavoli {

bool DamageGuard::isNews() {
  const PracticeItem& item = m_state.set.item(m_state.POS);
  const QString key = item.itemTable + item.itemEnglish;
  if (m_told.contains(key)) return false;
  m_told.insert(key);
  return true;
}

MarkedText DamageGuard::marked(const QString& text) {
  MarkedText result = parseMarks(text);
  if (result.unpaired && isNews()) m_dialogs.show(QStringLiteral("下線高輝度エラー：dispComment"));
  return result;
}

void DamageGuard::guardEmptyRecord(bool FK前問題) {
  if (m_state.record.小問数 > 0 || !isNews()) return;
  const QString guard = !m_state.record.sentence ? QStringLiteral("Stop32")
                        : FK前問題               ? QStringLiteral("Stop321")
                                                 : QStringLiteral("Stop31");
  m_dialogs.show(guard + QStringLiteral(" ﾃﾞｰﾀｴﾗｰ:") + m_state.set.item(m_state.POS).itemEnglish);
}

}  // namespace tavoli
