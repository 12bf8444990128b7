// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/screens/TAVO6.h"

using namespace Qt::StringLiterals;

namespace tavoli {

TAVO6::TAVO6(PracticeConditions& conditions, QWidget* parent)
    : RepeatDialog(u"正解要求時の繰り返し入力回数"_s,
                   {u"単語・熟語"_s, conditions.requiredRepeatWord, 5, 2},
                   {u"例文"_s, conditions.requiredRepeatSent, 3, 1}, parent) {
  setObjectName(u"TAVO6"_s);
}

}  // namespace tavoli
