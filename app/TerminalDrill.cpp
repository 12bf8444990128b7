// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/TerminalDrill.h"

#include <cstdlib>
#include <functional>
#include <vector>

#include "conditions/ConditionsByName.h"
#include "conditions/ConditionsRules.h"
#include "home/Placement.h"
#include "practice/DrillKeys.h"
#include "practice/PracticeRun.h"
#include "progress/ProgressReport.h"
#include "progress/TableSurvey.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

constexpr int badArguments = 2;

/// A line that is a key, what it does in a word, and what it presses.
struct LineKey {
  QString line;
  QString word;
  std::function<void(PracticeLoop&)> press;
};
using LineKeys = std::vector<LineKey>;

/// The function keys of a drill as lines. `keyPressed` is what each does before its own work.
LineKeys linesOf(const DrillKeys& keys, void (*keyPressed)(PracticeLoop&)) {
  LineKeys lines;
  for (const DrillKey& key : keys.inOrder())
    lines.push_back({u":F%1"_s.arg(static_cast<int>(key.key)), key.name,
                     [keyPressed, press = key.press](PracticeLoop& loop) {
                       keyPressed(loop);
                       press(loop, Pressed::Key);
                     }});
  return lines;
}

LineKey lineOf(const MenuCommand& command) {
  return {u':' + command.name, command.caption, command.press};
}

const LineKey quit{u":quit"_s, u"すぐ終了"_s, &PracticeLoop::exitAtOnce};

const LineKeys& practiceLines() {
  static const LineKeys lines = [] {
    LineKeys all = linesOf(practiceKeys(), [](PracticeLoop& loop) {
      if (!loop.確認中()) loop.keyPressed();
    });
    for (const MenuCommand& command : {reshuffleCommand(), logCommand()})
      all.push_back(lineOf(command));
    for (const auto* choices : {&comparisonCommands(), &timeUpCommands()})
      for (const MenuCommand& command : *choices) all.push_back(lineOf(command));
    all.push_back(quit);
    return all;
  }();
  return lines;
}

const LineKeys& reviewLines() {
  static const LineKeys lines = [] {
    LineKeys all = linesOf(reviewKeys(), [](PracticeLoop& loop) { loop.review().keyPressed(); });
    all.push_back(quit);
    return all;
  }();
  return lines;
}

/// Presses one of the keys, or looks a word up; tells what can be pressed when it is neither, with
/// `others` that are known elsewhere.
template <class Screen>
void pressOneOf(const LineKeys& keys, const QStringList& others, Terminal& terminal,
                PracticeLoop& loop, Screen& screen, const QString& key) {
  const QString look = u":look "_s;
  if (key.startsWith(look)) {
    screen.lookUp(key.sliced(look.size()));
    return;
  }
  QStringList help = QStringList{u":look 語 辞書を引く"_s} + others;
  for (const LineKey& known : keys) {
    if (known.line == key) {
      known.press(loop);
      return;
    }
    help.append(known.line + u' ' + known.word);
  }
  terminal.show(u"表示"_s, u"%1 というキーはありません。%2"_s.arg(key, help.join(u"、"_s)));
}

/// What a line leaves in the answer box. In a window the learner types on behind the given start;
/// here the start may be repeated, and a sentence to correct is written again.
QString entryOf(QString line, const QString& answerStart, bool correcting) {
  if (line.startsWith(u':')) line.remove(0, 1);
  line.replace(u'~', u'～');
  if (line.isEmpty()) return answerStart;
  return correcting || line.startsWith(answerStart) ? line : answerStart + line;
}

}  // namespace

TerminalDrill::TerminalDrill(Module1& module, const TerminalOptions& options, Paper& paper)
    : m_module(module),
      m_options(options),
      m_paper(paper),
      m_speaker(m_terminal),
      m_dialogs(m_terminal),
      m_conditions(m_terminal),
      m_workingCopy(module.learner, m_files, m_clock, m_dialogs),
      m_end(module, m_workingCopy, m_dialogs) {}

int TerminalDrill::run() {
  TerminalLogin screen(m_terminal);
  Login rules(m_module, m_workingCopy, m_files, m_clock, m_dialogs);
  if (!login(rules, screen)) return EXIT_FAILURE;
  showProgress();
  int status = EXIT_SUCCESS;
  if (const std::optional<QString> startKey = chooseConditions(status))
    status = practise(*startKey);
  if (status != EXIT_SUCCESS) m_end.leave();
  return status;
}

bool TerminalDrill::login(Login& login, TerminalLogin& screen) {
  if (m_options.user) {
    screen.userId = *m_options.user;
    const std::optional<QString> given = password();
    // An empty id becomes the standard user at the first press and goes on at the second.
    return given && (login.next(screen, screen.userId, *given) ||
                     (m_options.user->isEmpty() && login.next(screen, screen.userId, *given)));
  }
  for (;;) {
    const QString before = screen.userId;
    m_terminal.print(u"入力"_s, u"ユーザーID："_s);
    const std::optional<QString> id = m_terminal.readLine();
    if (!id) return false;
    screen.userId = id->isEmpty() ? before : *id;
    const std::optional<QString> typed = screen.userId.isEmpty() ? QString() : askPassword();
    if (!typed) return false;
    if (login.next(screen, screen.userId, *typed)) return true;
  }
}

std::optional<QString> TerminalDrill::password() {
  const char* const variable = "TAVOLI_PASSWORD";
  if (m_options.password) return m_options.password;
  if (qEnvironmentVariableIsSet(variable)) return qEnvironmentVariable(variable);
  return m_terminal.isInteractive() ? askPassword() : QString();
}

std::optional<QString> TerminalDrill::askPassword() {
  m_terminal.print(u"入力"_s, u"パスワード："_s);
  return m_terminal.readHiddenLine();
}

std::optional<QString> TerminalDrill::chooseConditions(int& status) {
  ConditionsRules rules(
      m_module.learner, m_module.course, m_module.conditions,
      ConditionsServices{m_files, m_dialogs, lessonFolder(m_module.applicationFolder),
                         [this](const QString& table) {
                           recountSpecialTable(m_module.learner.dbFileWork, table,
                                               m_module.progress);
                         }});
  QString complaint = setCourseByName(m_module.course, m_options.settings);
  if (complaint.isEmpty()) {
    status = EXIT_FAILURE;
    if (!rules.enter(m_conditions)) return std::nullopt;
    complaint = setByName(rules, m_module.conditions, m_options.settings);
  }
  if (!complaint.isEmpty()) {
    std::fprintf(stderr, "tavoli: %s\n", qPrintable(complaint));
    status = badArguments;
    return std::nullopt;
  }
  m_conditions.showPresent(m_module.course, m_module.conditions);
  return rules.next();
}

void TerminalDrill::showProgress() {
  QStringList lines;
  for (const NumberTable& table : ProgressReport(m_module.progress).tables()) {
    const auto line = [&](const QString& title, const QStringList& cells) {
      lines.append(title.trimmed() + u'：' + cells.join(u" / "_s));
    };
    line(table.title, table.columns);
    for (int row = 0; row < table.rows.size(); ++row) line(table.rows[row], table.cells[row]);
  }
  m_terminal.show(u"進捗"_s, lines.join(u'\n'));
}

int TerminalDrill::practise(const QString& startKey) {
  PracticeRun run(m_module.learner, m_module.course, m_module.conditions, m_module.clock,
                  m_module.progress, {m_files, m_clock, m_random, m_dialogs, m_speaker, m_paper});
  if (!run.openTables()) return EXIT_FAILURE;
  TerminalPractice screen(m_terminal, run.dictionaries());
  TerminalReview reviewScreen(m_terminal, run.reviewDictionaries());
  if (!run.open(screen, reviewScreen, screen, startKey)) return EXIT_FAILURE;
  drive(run.loop(), screen, reviewScreen);
  return m_end.endRun(run).stored ? EXIT_SUCCESS : EXIT_FAILURE;
}

void TerminalDrill::drive(PracticeLoop& loop, TerminalPractice& screen,
                          TerminalReview& reviewScreen) {
  while (!screen.closed) {
    const std::optional<QString> line = m_terminal.readLine();
    const bool reviewing = loop.復習中();
    loop.tick();
    loop.review().tick();
    if (!line) {
      loop.exitAtOnce();
    } else if (line->startsWith(u':') && !line->startsWith(u"::")) {
      if (reviewing)
        pressInReview(loop, reviewScreen, *line);
      else
        pressInPractice(loop, screen, *line);
    } else if (reviewing) {
      loop.review().enter(entryOf(*line, reviewScreen.answerStart, loop.review().correcting()));
    } else {
      // Every character and the Enter are keys.
      if (!loop.確認中()) loop.keysTyped(static_cast<int>(line->size()) + 1);
      loop.enter(entryOf(*line, screen.answerStart, loop.correcting()));
    }
  }
}

void TerminalDrill::pressInPractice(PracticeLoop& loop, TerminalPractice& screen,
                                    const QString& key) {
  if (key == u":conditions") {
    m_conditions.showAll(m_module.course, loop.conditions());
    return;
  }
  pressOneOf(practiceLines(), {u":conditions 練習条件"_s}, m_terminal, loop, screen, key);
}

void TerminalDrill::pressInReview(PracticeLoop& loop, TerminalReview& screen, const QString& key) {
  pressOneOf(reviewLines(), {}, m_terminal, loop, screen, key);
}

}  // namespace tavoli
