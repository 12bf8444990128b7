#pragma once

#include <QString>

namespace tavoli {

/// How typed answers are compared.
struct ComparisonSettings {
  QChar compareMode = u'0';   ///< 0 upper and lower case are the same, 1 they differ
  bool compareFlag = true;    ///< blanks are ignored
  bool compareHyphen = true;  ///< hyphens are ignored
};

/// The settings that stored conditions stand for.
ComparisonSettings comparisonSettings(QChar compareMode, bool compareFlag);

/// The text of the status panel that tells the settings.
QString comparisonStatus(const ComparisonSettings& settings);

/// The text without blanks, and without hyphens where the settings ignore them.
QString NormaliseAnswer(const QString& text, const ComparisonSettings& settings);

/// Whether what was typed is the answer, outer blanks aside. An empty entry never is.
bool isAnswer(const QString& answer, const QString& typed, const ComparisonSettings& settings);

}  // namespace tavoli
