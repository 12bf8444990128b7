// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/screens/TAVO7.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace tavoli {

void TAVO7::begin(int loadTotal) {
  m_dialog = std::make_unique<QProgressDialog>(u"問題を読み込んでいます。"_s, u"キャンセル"_s, 0,
                                               loadTotal, m_parent);
  m_dialog->setObjectName(u"TAVO7"_s);
  m_dialog->setWindowTitle(u"Tavoli"_s);
  m_dialog->setWindowModality(Qt::ApplicationModal);
  m_dialog->setMinimumDuration(0);
  m_dialog->setAutoReset(false);
  m_dialog->setValue(0);
}

bool TAVO7::reached(int loadDone) {
  m_dialog->setValue(loadDone);
  QCoreApplication::processEvents();
  return !m_dialog->wasCanceled();
}

}  // namespace tavoli
