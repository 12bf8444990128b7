// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/WordChecks.h"

#include <algorithm>

#include "contentbuilder/TextChecks.h"
#include "data/Text.h"

namespace tavoli {

namespace {

constexpr QChar stress = u'′';
constexpr QChar accentWarning = u'ァ';
constexpr QChar pronunciationWarning = u'発';

bool isLatin(QChar c) {
  return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

/// Whether a stress mark may stand behind the character.
bool bearsStress(QChar c) {
  static const QString vowels = QStringLiteral("aeiouy");
  static const QString small = QStringLiteral("ァィゥェォッャュョヮヵヶ");
  const bool kana = c >= u'ァ' && c <= u'ヺ';
  return vowels.contains(c, Qt::CaseInsensitive) || (kana && !small.contains(c));
}

QStringList repeated(const QStringList& texts) {
  QStringList twice;
  for (qsizetype i = 0; i < texts.size(); ++i)
    if (texts.indexOf(texts[i]) < i && !twice.contains(texts[i])) twice.append(texts[i]);
  return twice;
}

QStringList pronunciationProblems(const QString& key, const QString& 発音) {
  QStringList problems;
  const bool warns = 発音.startsWith(accentWarning) || 発音.startsWith(pronunciationWarning);
  QString spelt = 発音.sliced(warns ? 1 : 0);
  const auto marks = spelt.count(stress);
  if (marks > 1) problems.append(QStringLiteral("「発音」の「′」は一つだけにしてください。"));
  if (marks == 0 && 発音.startsWith(accentWarning))
    problems.append(QStringLiteral("「発音」の「ァ」の後ろの語に「′」がありません。"));
  for (qsizetype at = spelt.indexOf(stress); at >= 0; at = spelt.indexOf(stress, at + 1)) {
    if (at > 0 && bearsStress(spelt[at - 1])) continue;
    problems.append(
        QStringLiteral("「発音」の「′」は、母音の字か小さくない片仮名のすぐ後ろに"
                       "置いてください。"));
    break;
  }
  spelt.remove(stress);
  if (std::any_of(spelt.begin(), spelt.end(), isLatin) && spelt != key)
    problems.append(QStringLiteral("「発音」のつづり「%1」が「英語」と違います。").arg(spelt));
  return problems;
}

QStringList synonymProblems(const QString& key, const QStringList& 同) {
  QStringList problems;
  for (const QString& synonym : 同) {
    if (synonym.contains(u',') || synonym.contains(u'、'))
      problems.append(QStringLiteral("「同」の「%1」に「,」か「、」があります。語は「|」で区切って"
                                     "ください。")
                          .arg(synonym));
    else
      problems.append(untypableWordProblem(QStringLiteral("「同」"), synonym));
    if (sameTyped(synonym, key))
      problems.append(
          QStringLiteral("「同」の「%1」は「英語」と同じです（空白と「-」は区別しません）。")
              .arg(synonym));
  }
  return problems;
}

}  // namespace

bool sameTyped(const QString& one, const QString& other) {
  const auto typed = [](QString text) { return text.remove(u' ').remove(u'-'); };
  return typed(one) == typed(other);
}

QStringList wordProblems(const ContentRow& row, const CurrentRecord& record) {
  QStringList meanings;
  for (const SubQuestion& s : record.小問) meanings.append(s.日本語);
  QStringList problems = {untypableWordProblem(QStringLiteral("「英語」"), row.key)};
  problems += pronunciationProblems(row.key, record.発音);
  problems += synonymProblems(row.key, record.同);
  for (const QString& twice : repeated(record.同))
    problems.append(QStringLiteral("「同」に「%1」が二つあります。").arg(twice));
  for (const QString& twice : repeated(meanings))
    problems.append(QStringLiteral("「日」に「%1」が二つあります。").arg(twice));
  problems.append(lookalikeProblem(QStringLiteral("「発音」"), record.発音));
  problems.append(lookalikeProblem(QStringLiteral("「日」"), meanings.join(u' ')));
  problems.append(lookalikeProblem(QStringLiteral("「コメント」"), record.コメント));
  problems.append(lookalikeProblem(QStringLiteral("「読上」"), row.読上));
  problems.removeAll(QString());
  return problems;
}

}  // namespace tavoli
