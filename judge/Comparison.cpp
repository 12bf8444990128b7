#include "judge/Comparison.h"

#include "data/Text.h"

namespace tavoli {

ComparisonSettings comparisonSettings(QChar compareMode, bool compareFlag) {
  return {compareMode, compareFlag, compareFlag};
}

QString comparisonStatus(const ComparisonSettings& settings) {
  const bool caseMatters = settings.compareMode == u'1';
  if (settings.compareFlag) {
    return caseMatters ? QStringLiteral("比較方法 A-BCDE＝AB  C  DE")
                       : QStringLiteral("比較方法 A-BCDE＝ab  c  de");
  }
  return caseMatters ? QStringLiteral("比較方法 ABCDE≠abcde")
                     : QStringLiteral("比較方法 ABCDE＝abcde");
}

QString NormaliseAnswer(const QString& text, const ComparisonSettings& settings) {
  QString normal = text;
  normal.remove(u' ');
  if (settings.compareHyphen) normal.remove(u'-');
  return normal;
}

bool isAnswer(const QString& answer, const QString& typed, const ComparisonSettings& settings) {
  const auto compared = [&](const QString& text) {
    QString result = trimBlanks(text);
    if (settings.compareMode == u'0') result = result.toLower();
    return settings.compareFlag ? NormaliseAnswer(result, settings) : result;
  };
  const QString entry = compared(typed);
  return !entry.isEmpty() && entry == compared(answer);
}

}  // namespace tavoli
