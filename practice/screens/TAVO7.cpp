#include "practice/screens/TAVO7.h"

#include <QCoreApplication>

namespace tavoli {

void TAVO7::begin(int loadTotal) {
  m_dialog =
      std::make_unique<QProgressDialog>(QStringLiteral("問題を読み込んでいます。"),
                                        QStringLiteral("キャンセル"), 0, loadTotal, m_parent);
  m_dialog->setObjectName(QStringLiteral("TAVO7"));
  m_dialog->setWindowTitle(QStringLiteral("Tavoli"));
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
