#include "conditions/screens/TAVO5.h"

namespace tavoli {

TAVO5::TAVO5(PracticeConditions& conditions, QWidget* parent)
    : RepeatDialog(QStringLiteral("繰返し回数の設定"),
                   {QStringLiteral("単語・熟語"), conditions.firstRepeatWord, 5, 2},
                   {QStringLiteral("例文"), conditions.firstRepeatSent, 3, 1}, parent) {
  setObjectName(QStringLiteral("TAVO5"));
}

}  // namespace tavoli
