#pragma once

#include <QString>

#include "conditions/PracticeConditions.h"

namespace tavoli {

/// Sets a field of the conditions, or COURSE or specialTable, from its name and a text. Returns ""
/// or a sentence that says what is wrong with the name or the value; nothing is changed then.
QString setByName(PracticeConditions& conditions, CourseChoice& course, const QString& name,
                  const QString& value);

}  // namespace tavoli
