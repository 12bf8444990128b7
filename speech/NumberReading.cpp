// SPDX-License-Identifier: GPL-3.0-or-later

#include "speech/NumberReading.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <map>

namespace tavoli {

namespace {

constexpr int base = 10;

const std::array<QString, base> digitNames = {
    QStringLiteral("ゼロ"), QStringLiteral("イチ"),  QStringLiteral("ニ"),   QStringLiteral("サン"),
    QStringLiteral("ヨン"), QStringLiteral("ゴ"),    QStringLiteral("ロク"), QStringLiteral("ナナ"),
    QStringLiteral("ハチ"), QStringLiteral("キュー")};

/// Counters that take ヒト and フタ.
const QStringList nativeCounters = {
    QStringLiteral("切れ"), QStringLiteral("巻き"), QStringLiteral("組"), QStringLiteral("箱"),
    QStringLiteral("晩"),   QStringLiteral("皿"),   QStringLiteral("袋"), QStringLiteral("束"),
    QStringLiteral("部屋"), QStringLiteral("口")};

using Numbered = std::map<int, QString>;

const Numbered things = {{1, QStringLiteral("ヒトツ")},   {2, QStringLiteral("フタツ")},
                         {3, QStringLiteral("ミッツ")},   {4, QStringLiteral("ヨッツ")},
                         {5, QStringLiteral("イツツ")},   {6, QStringLiteral("ムッツ")},
                         {7, QStringLiteral("ナナツ")},   {8, QStringLiteral("ヤッツ")},
                         {9, QStringLiteral("ココノツ")}, {10, QStringLiteral("トー")}};
const Numbered people = {{1, QStringLiteral("ヒトリ")}, {2, QStringLiteral("フタリ")}};
const Numbered days = {
    {2, QStringLiteral("フツカ")},        {3, QStringLiteral("ミッカ")},
    {4, QStringLiteral("ヨッカ")},        {5, QStringLiteral("イツカ")},
    {6, QStringLiteral("ムイカ")},        {7, QStringLiteral("ナノカ")},
    {8, QStringLiteral("ヨーカ")},        {9, QStringLiteral("ココノカ")},
    {10, QStringLiteral("トーカ")},       {14, QStringLiteral("ジューヨッカ")},
    {20, QStringLiteral("ハツカ")},       {24, QStringLiteral("ニジューヨッカ")},
    {19, QStringLiteral("ジュークニチ")}, {29, QStringLiteral("ニジュークニチ")}};
/// The counters that these wholes belong to.
const std::map<QString, Numbered> wholes = {{QStringLiteral("つ"), things},
                                            {QStringLiteral("人"), people},
                                            {QStringLiteral("日"), days},
                                            {QStringLiteral("日間"), days}};

/// Last digits that sound otherwise before a counter.
const std::map<QString, Numbered> lastDigits = {
    {QStringLiteral("人"), {{4, QStringLiteral("ヨ")}}},
    {QStringLiteral("年"), {{4, QStringLiteral("ヨ")}}},
    {QStringLiteral("年間"), {{4, QStringLiteral("ヨ")}}},
    {QStringLiteral("年生"), {{4, QStringLiteral("ヨ")}}},
    {QStringLiteral("円"), {{4, QStringLiteral("ヨ")}}},
    {QStringLiteral("月"),
     {{4, QStringLiteral("シ")}, {7, QStringLiteral("シチ")}, {9, QStringLiteral("ク")}}},
    {QStringLiteral("時"),
     {{4, QStringLiteral("ヨ")}, {7, QStringLiteral("シチ")}, {9, QStringLiteral("ク")}}},
    {QStringLiteral("時間"),
     {{4, QStringLiteral("ヨ")}, {7, QStringLiteral("シチ")}, {9, QStringLiteral("ク")}}},
    {QStringLiteral("時半"),
     {{4, QStringLiteral("ヨ")}, {7, QStringLiteral("シチ")}, {9, QStringLiteral("ク")}}}};

/// Counters that the dictionary knows by another sound.
const std::map<QString, QString> counterSounds = {
    {QStringLiteral("文"), QStringLiteral("ブン")}, {QStringLiteral("語"), QStringLiteral("ゴ")},
    {QStringLiteral("月"), QStringLiteral("ガツ")}, {QStringLiteral("日"), QStringLiteral("ニチ")},
    {QStringLiteral("年"), QStringLiteral("ネン")}, {QStringLiteral("時"), QStringLiteral("ジ")},
    {QStringLiteral("歳"), QStringLiteral("サイ")}, {QStringLiteral("足"), QStringLiteral("ソク")},
    {QStringLiteral("通"), QStringLiteral("ツー")}, {QStringLiteral("人"), QStringLiteral("ニン")},
    {QStringLiteral("組"), QStringLiteral("クミ")}};

QString unitAfter(int digit, const QString& unit, const Numbered& changed) {
  const auto found = changed.find(digit);
  if (found != changed.end()) return found->second;
  return (digit == 1 ? QString() : digitNames[digit]) + unit;
}

/// A number below 10,000, without zero.
QString kanaOfFour(int number) {
  static const Numbered thousands = {{3, QStringLiteral("サンゼン")},
                                     {8, QStringLiteral("ハッセン")}};
  static const Numbered hundreds = {{3, QStringLiteral("サンビャク")},
                                    {6, QStringLiteral("ロッピャク")},
                                    {8, QStringLiteral("ハッピャク")}};
  QString kana;
  const auto part = [&](int unit, const QString& name, const Numbered& changed) {
    const int digit = number / unit % base;
    if (digit > 0) kana += unitAfter(digit, name, changed);
  };
  part(base * base * base, QStringLiteral("セン"), thousands);
  part(base * base, QStringLiteral("ヒャク"), hundreds);
  part(base, QStringLiteral("ジュー"), {});
  if (number % base > 0) kana += digitNames[number % base];
  return kana;
}

/// Where a kana stands in the table of sounds: カ, サ, タ, ハ, パ; blank elsewhere.
QChar rowOf(QChar kana) {
  static const QStringList rows = {QStringLiteral("カキクケコ"), QStringLiteral("サシスセソ"),
                                   QStringLiteral("タチツテト"), QStringLiteral("ハヒフヘホ"),
                                   QStringLiteral("パピプペポ")};
  for (const QString& row : rows)
    if (row.contains(kana)) return row.front();
  return u' ';
}

/// A kana of the row ハ with another mark: バ is 1 and パ is 2 places behind ハ.
QString withMark(const QString& kana, int places) {
  return QChar(static_cast<char16_t>(kana.front().unicode() + places)) + kana.mid(1);
}

struct Joint {
  QString number;
  QString counter;
};

/// イチ, ロク, ハチ, ジュー and ヒャク swallow their last sound before some rows.
Joint swallowed(Joint joint, bool foreign) {
  struct Ending {
    QString name;
    QString rows;
    QString foreignRows;
  };
  static const std::array<Ending, 5> endings = {
      Ending{QStringLiteral("イチ"), QStringLiteral("カサタハパ"), QStringLiteral("サタ")},
      Ending{QStringLiteral("ロク"), QStringLiteral("カハパ"), QStringLiteral("カ")},
      Ending{QStringLiteral("ハチ"), QStringLiteral("カサタハパ"), QStringLiteral("サタ")},
      Ending{QStringLiteral("ジュー"), QStringLiteral("カサタハパ"), QStringLiteral("カサタパ")},
      Ending{QStringLiteral("ヒャク"), QStringLiteral("カハパ"), QString()}};
  const QChar row = rowOf(joint.counter.front());
  for (const Ending& ending : endings) {
    if (!joint.number.endsWith(ending.name)) continue;
    if (!(foreign ? ending.foreignRows : ending.rows).contains(row)) return joint;
    joint.number = joint.number.chopped(1) + u'ッ';
    if (row == u'ハ') joint.counter = withMark(joint.counter, 2);
    return joint;
  }
  return joint;
}

Joint joined(Joint joint, const QString& counter) {
  static const QStringList softened = {QStringLiteral("本"), QStringLiteral("匹"),
                                       QStringLiteral("杯")};
  static const QStringList hardened = {QStringLiteral("分"), QStringLiteral("分間"),
                                       QStringLiteral("泊"), QStringLiteral("発")};
  const QChar first = counter.front();
  const bool foreign = first >= u'ァ' && first <= u'ヴ';
  const bool three = joint.number.endsWith(QStringLiteral("サン"));
  const bool four = joint.number.endsWith(QStringLiteral("ヨン"));
  if (three && softened.contains(counter)) joint.counter = withMark(joint.counter, 1);
  if ((three || four) && hardened.contains(counter)) joint.counter = withMark(joint.counter, 2);
  if (three && counter == QStringLiteral("階")) joint.counter = QStringLiteral("ガイ");
  if (three && counter == QStringLiteral("軒")) joint.counter = QStringLiteral("ゲン");
  return swallowed(joint, foreign);
}

}  // namespace

QString digitsOf(const QString& written) {
  static const QString figures = QStringLiteral("〇一二三四五六七八九");
  static const QString smallUnits = QStringLiteral("十百千");
  static const QString largeUnits = QStringLiteral("万億兆");
  constexpr qint64 tooLarge = 1'000'000'000'000;
  QString plain;
  for (const QChar c : written) {
    const qsizetype figure = figures.indexOf(c);
    plain += figure >= 0 ? QChar(static_cast<char16_t>(u'0' + figure)) : c;
  }
  if (std::all_of(plain.begin(), plain.end(), [](QChar c) { return c >= u'0' && c <= u'9'; }))
    return plain;
  qint64 whole = 0;
  qint64 group = 0;
  qint64 figure = 0;
  for (const QChar c : plain) {
    if (whole > tooLarge || group > tooLarge || figure > tooLarge) return {};
    if (c >= u'0' && c <= u'9') {
      figure = base * figure + c.digitValue();
    } else if (const qsizetype small = smallUnits.indexOf(c); small >= 0) {
      constexpr std::array<qint64, 3> values = {10, 100, 1000};
      group += std::max<qint64>(figure, 1) * values[small];
      figure = 0;
    } else if (const qsizetype large = largeUnits.indexOf(c); large >= 0) {
      constexpr std::array<qint64, 3> values = {10'000, 100'000'000, 1'000'000'000'000};
      whole += std::max<qint64>(group + figure, 1) * values[large];
      group = figure = 0;
    } else {
      return {};
    }
  }
  return QString::number(whole + group + figure);
}

QString kanaOfNumber(const QString& digits) {
  constexpr qsizetype mostDigits = 16;
  constexpr int groupWidth = 4;
  static const QStringList groups = {QString(), QStringLiteral("マン"), QStringLiteral("オク"),
                                     QStringLiteral("チョー")};
  QString kana;
  if (digits.size() > mostDigits || (digits.size() > 1 && digits.startsWith(u'0'))) {
    for (const QChar digit : digits) kana += digitNames[digit.digitValue()];
    return kana;
  }
  if (digits == QStringLiteral("0")) return digitNames[0];
  for (qsizetype end = digits.size(), group = 0; end > 0; end -= groupWidth, ++group) {
    const qsizetype begin = std::max<qsizetype>(0, end - groupWidth);
    const int number = digits.sliced(begin, end - begin).toInt();
    if (number == 0) continue;
    QString part = kanaOfFour(number);
    // It is イッセンマン, though セン alone.
    if (group > 0 && part == QStringLiteral("セン")) part = QStringLiteral("イッセン");
    kana = part + groups[group] + kana;
  }
  return kana;
}

QString kanaOfCount(const QString& digits, const QString& counter, const QString& counterKana) {
  const int number = digits.size() < 9 ? digits.toInt() : 0;
  if (const auto found = wholes.find(counter); found != wholes.end())
    if (const auto whole = found->second.find(number); whole != found->second.end())
      return whole->second +
             (counter == QStringLiteral("日間") ? QStringLiteral("カン") : QString());
  if (nativeCounters.contains(counter) && (number == 1 || number == 2))
    return (number == 1 ? QStringLiteral("ヒト") : QStringLiteral("フタ")) + counterKana;

  Joint joint{kanaOfNumber(digits), counterKana};
  if (const auto sound = counterSounds.find(counter); sound != counterSounds.end())
    joint.counter = sound->second;
  const int last = digits.back().digitValue();
  if (const auto found = lastDigits.find(counter); found != lastDigits.end())
    if (const auto changed = found->second.find(last); changed != found->second.end()) {
      joint.number = joint.number.chopped(digitNames[last].size()) + changed->second;
      return joint.number + joint.counter;
    }
  if (joint.counter.isEmpty()) return joint.number;
  joint = joined(joint, counter);
  return joint.number + joint.counter;
}

QString kanaOfDate(const QString& digits) {
  if (digits == QStringLiteral("1")) return QStringLiteral("ツイタチ");
  return kanaOfCount(digits, QStringLiteral("日"), QStringLiteral("ニチ"));
}

}  // namespace tavoli
