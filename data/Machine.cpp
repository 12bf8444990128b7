// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/Machine.h"

#include <QFile>
#include <QRandomGenerator>

#include "system/Files.h"

namespace tavoli {

namespace {

constexpr int idDigits = 16;
constexpr qint64 mostBytes = 32;  ///< an id with its line end is shorter

bool isId(const QByteArray& text) {
  return text.size() == idDigits && std::all_of(text.begin(), text.end(), [](char c) {
           return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f');
         });
}

}  // namespace

QString randomId(int digits) {
  return QString::number(QRandomGenerator::system()->generate64(), 16)
      .rightJustified(digits, u'0')
      .right(digits);
}

QString machineOf(const QString& folder) {
  QFile file(folder + u'/' + machineFileName);
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QByteArray text = file.read(mostBytes).trimmed();
  return isId(text) ? QString::fromLatin1(text) : QString();
}

bool makeMachine(Files& files, const QString& folder) {
  return !machineOf(folder).isEmpty() ||
         files.write(folder + u'/' + machineFileName, randomId(idDigits).toLatin1() + '\n') ==
             FileResult::Ok;
}

}  // namespace tavoli
