// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QString>
#include <QTextStream>

#include <cstdio>
#include <optional>

#include "app/Login.h"
#include "practice/PracticeRun.h"
#include "practice/PracticeScreen.h"
#include "practice/ReviewScreen.h"
#include "speech/Speaker.h"
#include "system/Dialogs.h"
#include "system/LoadProgress.h"

namespace tavoli {

/// The standard input and output of the terminal front end: lines in, named areas out, in UTF-8.
class Terminal {
 public:
  Terminal();
  /// Prints an area's text, its name in front and further lines indented, unless it shows the text
  /// already. An area that becomes empty prints its name alone.
  void show(const QString& area, const QString& text);
  /// Prints a text in an area that goes on showing what it shows.
  void print(const QString& area, const QString& text);
  /// The next line; nothing at the end of the input.
  std::optional<QString> readLine();
  /// The same; what a person types is not seen.
  std::optional<QString> readHiddenLine();
  /// Whether a person types, not a script.
  static bool isInteractive();

 private:
  QTextStream m_in;
  QTextStream m_out;
  QHash<QString, QString> m_shown;
};

/// Boxes in the terminal: the text, then ":yes" or ":no", or an empty line for OK. At the end of
/// the input a question counts as refused.
class TerminalDialogs final : public Dialogs {
 public:
  explicit TerminalDialogs(Terminal& terminal) : m_terminal(terminal) {}
  void show(const QString& text) override;
  bool ask(const QString& text) override;

 private:
  Terminal& m_terminal;
};

/// The voice in the terminal: every text as it goes to the character, tags and all.
class TerminalSpeaker final : public Speaker {
 public:
  explicit TerminalSpeaker(Terminal& terminal) : m_terminal(terminal) {}
  using Speaker::speak;
  void speak(const Utterance& utterance) override;
  void stop() override;
  void beep() override {}

 private:
  Terminal& m_terminal;
};

/// The login's screen in the terminal.
class TerminalLogin final : public LoginScreen {
 public:
  explicit TerminalLogin(Terminal& terminal) : m_terminal(terminal) {}
  void setUserId(const QString& text) override;
  void focusUserId() override {}
  void focusPassword() override {}
  void setBusy(bool) override {}
  void showEngineTrouble() override;

  QString userId;

 private:
  Terminal& m_terminal;
};

/// What the screens of drills with typed answers have in common in the terminal.
template <class Screen>
class TerminalAnswers : public Screen {
 public:
  TerminalAnswers(Terminal& terminal, std::vector<Dictionary>& dictionaries)
      : m_terminal(terminal), m_dictionaries(dictionaries) {}

  void showQuestion(const MarkedText& text) override;
  void showSubQuestion(const QuestionView& view) override;
  void setAnswer(const QString& text) override;
  void focusAnswer() override {}
  void showFullAnswer(const MarkedText& text) override;
  void showMessage(const MarkedText& text) override;
  void lookUp(const QString& text) override;
  void showTime(const AnswerTime& time) override;
  void awaitConfirmation(bool awaited) override;

  /// What stands in the answer box before anything is typed.
  QString answerStart;

 protected:
  Terminal& m_terminal;

 private:
  std::vector<Dictionary>& m_dictionaries;
};

/// The practice's screen in the terminal.
class TerminalPractice final : public TerminalAnswers<PracticeScreen>, public LoadProgress {
 public:
  using TerminalAnswers::TerminalAnswers;

  void showCaption(const QString& text) override;
  void showSource(const QString& text) override;
  void showMiniTest(const MarkedText& text) override;
  void enableKey(FunctionKey, bool) override {}
  void showComparison(int) override {}
  void showTimeUpSound(int) override {}
  void showLog(const QStringList& runLog, bool shown) override;
  void showCounts(const RunCounts& counts) override;
  void showStatus(StatusPanel panel, const QString& text) override;
  void close() override { closed = true; }

  void begin(int loadTotal) override;
  bool reached(int loadDone) override;
  void end() override {}

  bool closed = false;

 private:
  int m_loadTotal = 0;
};

/// The review's screen in the terminal. It uses the areas of the practice, and leaves them empty.
class TerminalReview final : public TerminalAnswers<ReviewScreen> {
 public:
  using TerminalAnswers::TerminalAnswers;

  void beginReview(const QString& course) override;
  void endReview() override;
};

}  // namespace tavoli
