#include "conditions/screens/TAVO6.h"

namespace tavoli {

TAVO6::TAVO6(PracticeConditions& conditions, QWidget* parent)
    : RepeatDialog(QStringLiteral("正解要求時の繰り返し入力回数"),
                   {QStringLiteral("単語・熟語"), conditions.requiredRepeatWord, 5, 2},
                   {QStringLiteral("例文"), conditions.requiredRepeatSent, 3, 1}, parent) {
  setObjectName(QStringLiteral("TAVO6"));
}

}  // namespace tavoli
