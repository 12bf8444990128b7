// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

#include <utility>

#include "conditions/PastConditions.h"
#include "conditions/PracticeConditions.h"

// The conditions as people read them. An unknown code gives an empty text.
namespace tavoli {

QString methodName(SelMethod selMethod);
QString startModeName(StartMode startMode);
QString memorySelectName(MemorySelect memorySelect);

/// Captions and values, in the order in which they are shown.
using ConditionLines = QList<std::pair<QString, QString>>;
ConditionLines describeConditions(const CourseChoice& course, const PracticeConditions& conditions);
ConditionLines describePastRun(const PastRun& run);

}  // namespace tavoli
