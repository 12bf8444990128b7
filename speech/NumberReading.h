// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// How Japanese says numbers that are written in digits.
namespace tavoli {

/// The digits of a number that is written in kanji, in digits, or in both (10万); empty when the
/// text is no number.
QString digitsOf(const QString& written);

/// A number's digits in katakana. One of more than 16 digits, or with zeros in front, is said digit
/// by digit.
QString kanaOfNumber(const QString& digits);

/// The same with what is counted, whose sound and the number's change each other: 3 and 本 (ホン)
/// make サンボン. `counterKana` is the counter's sound alone.
QString kanaOfCount(const QString& digits, const QString& counter, const QString& counterKana);

/// The n-th day of a month: フツカ.
QString kanaOfDate(const QString& digits);

}  // namespace tavoli
