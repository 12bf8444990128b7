#include "app/Terminal.h"

#include <termios.h>
#include <unistd.h>

namespace tavoli {

namespace {

const QString areaBox = QStringLiteral("箱");
const QString areaAnswer = QStringLiteral("回答");
const QString areaQuestion = QStringLiteral("問題");
const QString areaSubQuestion = QStringLiteral("小問");
const QString areaFullAnswer = QStringLiteral("正解");
const QString areaMessage = QStringLiteral("表示");
const QString areaConfirmation = QStringLiteral("確認");
const QString areaReview = QStringLiteral("復習");

/// The text with its marks written out as the sources spell them.
QString withMarks(const MarkedText& marked) {
  QString text = marked.text;
  qsizetype shift = 0;
  for (const MarkedText::Span& span : marked.spans) {
    const bool underlined = span.kind == MarkedText::Span::Kind::Underlined;
    text.insert(span.offset + shift++, underlined ? u'[' : u'{');
    text.insert(span.offset + span.length + shift++, underlined ? u']' : u'}');
  }
  return text;
}

}  // namespace

Terminal::Terminal() : m_in(stdin), m_out(stdout) {
  m_in.setEncoding(QStringConverter::Utf8);
  m_out.setEncoding(QStringConverter::Utf8);
}

void Terminal::show(const QString& area, const QString& text) {
  if (m_shown.value(area) == text) return;
  m_shown[area] = text;
  print(area, text);
}

void Terminal::print(const QString& area, const QString& text) {
  QString lines = text.endsWith(u'\n') ? text.chopped(1) : text;
  lines.replace(u'\n', QStringLiteral("\n    "));
  if (!lines.isEmpty()) lines.prepend(u' ');
  m_out << u'[' << area << u']' << lines << Qt::endl;
}

std::optional<QString> Terminal::readLine() {
  m_out.flush();
  const QString line = m_in.readLine();
  if (line.isNull()) return std::nullopt;
  return line;
}

bool Terminal::isInteractive() {
  return isatty(STDIN_FILENO) != 0;
}

std::optional<QString> Terminal::readHiddenLine() {
  termios shown{};
  if (!isInteractive() || tcgetattr(STDIN_FILENO, &shown) != 0) return readLine();
  termios hidden = shown;
  hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
  hidden.c_lflag |= ECHONL;
  tcsetattr(STDIN_FILENO, TCSADRAIN, &hidden);
  std::optional<QString> line = readLine();
  tcsetattr(STDIN_FILENO, TCSADRAIN, &shown);
  return line;
}

void TerminalDialogs::show(const QString& text) {
  m_terminal.show(areaBox, text + QStringLiteral("（空の行でOK）"));
  while (const std::optional<QString> line = m_terminal.readLine()) {
    if (line->isEmpty() || *line == u":ok") break;
    m_terminal.print(areaBox, QStringLiteral("先に空の行を入れてください。"));
  }
  m_terminal.show(areaBox, QString());
}

bool TerminalDialogs::ask(const QString& text) {
  m_terminal.show(areaBox, text + QStringLiteral("（:yes / :no）"));
  bool yes = false;
  while (const std::optional<QString> line = m_terminal.readLine()) {
    yes = *line == u":yes";
    if (yes || *line == u":no") break;
    m_terminal.print(areaBox, QStringLiteral("先に :yes か :no を入れてください。"));
  }
  m_terminal.show(areaBox, QString());
  return yes;
}

void TerminalLogin::setUserId(const QString& text) {
  userId = text;
  m_terminal.show(QStringLiteral("ユーザーID"), text);
}

void TerminalLogin::showEngineTrouble() {
  m_terminal.show(areaBox,
                  QStringLiteral("データベースを使えません。Tavoli を入れ直してください。"));
}

template <class Screen>
void TerminalAnswers<Screen>::showQuestion(const MarkedText& text) {
  m_terminal.show(areaQuestion, withMarks(text));
}

template <class Screen>
void TerminalAnswers<Screen>::showSubQuestion(const QuestionView& view) {
  m_terminal.show(areaSubQuestion, subQuestionNumber(view));
}

template <class Screen>
void TerminalAnswers<Screen>::setAnswer(const QString& text) {
  answerStart = text;
  m_terminal.show(areaAnswer, text);
}

template <class Screen>
void TerminalAnswers<Screen>::showFullAnswer(const MarkedText& text) {
  m_terminal.show(areaFullAnswer, withMarks(text));
}

template <class Screen>
void TerminalAnswers<Screen>::showMessage(const MarkedText& text) {
  m_terminal.show(areaMessage, withMarks(text));
}

template <class Screen>
void TerminalAnswers<Screen>::lookUp(const QString& text) {
  for (Dictionary& dictionary : m_dictionaries) {
    if (const std::optional<MarkedText> entry = dictionary.lookUp.find(text))
      m_terminal.show(dictionary.heading, withMarks(*entry));
  }
}

template <class Screen>
void TerminalAnswers<Screen>::showTime(const AnswerTime& time) {
  m_terminal.show(QStringLiteral("時間"),
                  time.used >= 1 ? QStringLiteral("%1秒　時間切れ").arg(time.seconds) : QString());
}

template <class Screen>
void TerminalAnswers<Screen>::awaitConfirmation(bool awaited) {
  m_terminal.show(areaConfirmation, awaited ? QStringLiteral("空の行で次に進みます。") : QString());
}

template class TerminalAnswers<PracticeScreen>;
template class TerminalAnswers<ReviewScreen>;

void TerminalPractice::showCaption(const QString& text) {
  m_terminal.show(QStringLiteral("見出し"), text);
}

void TerminalPractice::showSource(const QString& text) {
  m_terminal.show(QStringLiteral("出典"), text);
}

void TerminalPractice::showMiniTest(const MarkedText& text) {
  m_terminal.show(QStringLiteral("小試験"), withMarks(text));
}

void TerminalPractice::showLog(const QStringList& runLog, bool shown) {
  m_terminal.show(QStringLiteral("経過"), shown ? runLog.join(u'\n') : QString());
}

void TerminalPractice::showCounts(const RunCounts& counts) {
  QStringList parts;
  const QStringList levels = {QStringLiteral("中学"), QStringLiteral("高校"),
                              QStringLiteral("専門")};
  for (size_t i = 0; i < counts.run.words.size(); ++i) {
    if (counts.run.words[i] + counts.run.sentences[i] > 0)
      parts.append(QStringLiteral("%1 単語・熟語 %2 例文 %3")
                       .arg(levels[static_cast<qsizetype>(i)])
                       .arg(counts.run.words[i])
                       .arg(counts.run.sentences[i]));
  }
  m_terminal.show(QStringLiteral("回数"), parts.join(QStringLiteral("、")));
}

void TerminalPractice::showStatus(StatusPanel panel, const QString& text) {
  m_terminal.show(QStringLiteral("状態%1").arg(static_cast<int>(panel)), text);
}

void TerminalPractice::begin(int loadTotal) {
  m_loadTotal = loadTotal;
}

bool TerminalPractice::reached(int loadDone) {
  m_terminal.show(QStringLiteral("読込"), QStringLiteral("%1／%2").arg(loadDone).arg(m_loadTotal));
  return true;
}

void TerminalReview::beginReview(const QString& course) {
  m_terminal.show(areaReview, course);
}

void TerminalReview::endReview() {
  for (const QString& area : {areaQuestion, areaAnswer, areaFullAnswer, areaMessage, areaReview})
    m_terminal.show(area, QString());
}

}  // namespace tavoli
