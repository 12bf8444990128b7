#include "practice/DamageGuard.h"

#include "system/Dialogs.h"

namespace tavoli {

namespace {

const QString kindShown = QStringLiteral("shown");
const QString kindStored = QStringLiteral("stored");

}  // namespace

bool DamageGuard::isNews(const QString& kind) {
  const PracticeItem& item = m_state.shown.item();
  const QString key = kind + stored(item.itemTable) + item.itemEnglish;
  if (m_told.contains(key)) return false;
  m_told.insert(key);
  return true;
}

MarkedText DamageGuard::marked(const QString& text) {
  MarkedText result = parseMarks(text);
  if (result.unpaired && isNews(kindShown))
    m_dialogs.show(QStringLiteral("下線高輝度エラー：dispComment"));
  return result;
}

void DamageGuard::guardEmptyRecord(bool FK前問題) {
  if (m_state.shown.record().小問数 > 0 || !isNews(kindShown)) return;
  const QString guard = !m_state.shown.record().sentence ? QStringLiteral("Stop32")
                        : FK前問題               ? QStringLiteral("Stop321")
                                                 : QStringLiteral("Stop31");
  m_dialogs.show(guard + QStringLiteral(" ﾃﾞｰﾀｴﾗｰ:") + m_state.shown.item().itemEnglish);
}

QString DamageGuard::memoryUnchanged() {
  if (!isNews(kindStored)) return {};
  return QStringLiteral("この項目のデータに誤りがあるため、記憶状態は変更しません。");
}

}  // namespace tavoli
