#pragma once

#include <QChar>
#include <QString>

namespace tavoli {

inline constexpr QChar course中学 = u'0';
inline constexpr QChar course高校 = u'1';
inline constexpr QChar course専門 = u'2';

/// Which course was practised last, and with which specialist dictionary.
struct CourseChoice {
  QChar COURSE = course高校;
  QString specialTable;  ///< a table's name, at most 25 characters
};

}  // namespace tavoli
