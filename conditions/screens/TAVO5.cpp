// SPDX-License-Identifier: GPL-3.0-or-later

#include "conditions/screens/TAVO5.h"

using namespace Qt::StringLiterals;

namespace tavoli {

TAVO5::TAVO5(PracticeConditions& conditions, QWidget* parent)
    : RepeatDialog(u"繰返し回数の設定"_s, {u"単語・熟語"_s, conditions.firstRepeatWord, 5, 2},
                   {u"例文"_s, conditions.firstRepeatSent, 3, 1}, parent) {
  setObjectName(u"TAVO5"_s);
}

}  // namespace tavoli
