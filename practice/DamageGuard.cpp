// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/DamageGuard.h"

#include "system/Dialogs.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

const QString kindShown = u"shown"_s;
const QString kindStored = u"stored"_s;

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
  if (result.unpaired && isNews(kindShown)) m_dialogs.show(u"下線高輝度エラー：dispComment"_s);
  return result;
}

void DamageGuard::guardEmptyRecord(bool FK前問題) {
  if (m_state.shown.record().小問数 > 0 || !isNews(kindShown)) return;
  const QString guard = !m_state.shown.record().sentence ? u"Stop32"_s
                        : FK前問題                       ? u"Stop321"_s
                                                         : u"Stop31"_s;
  m_dialogs.show(guard + u" ﾃﾞｰﾀｴﾗｰ:"_s + m_state.shown.item().itemEnglish);
}

QString DamageGuard::memoryUnchanged() {
  if (!isNews(kindStored)) return {};
  return u"この項目のデータに誤りがあるため、記憶状態は変更しません。"_s;
}

}  // namespace tavoli
