// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

#include <utility>

#include "conditions/PracticeConditions.h"

// Conditions set by their names and texts, without a window.
namespace tavoli {

class ConditionsRules;

using NamedValues = QList<std::pair<QString, QString>>;

/// Takes COURSE and specialTable out of the values, to be done before the screen is entered: they
/// say whose conditions are loaded. Returns "" or a sentence that says what is wrong.
QString setCourseByName(CourseChoice& course, const NamedValues& values);

/// Does with the other values what a learner would do on the screen, in the screen's order; fields
/// that have no control there are set in `conditions`, which the rules work on. Returns "" or a
/// sentence that says what is wrong with the first bad name or value.
QString setByName(ConditionsRules& rules, PracticeConditions& conditions,
                  const NamedValues& values);

}  // namespace tavoli
