// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Terminal.h"

#include <termios.h>
#include <unistd.h>

#include "speech/SpeechTags.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

const QString areaBox = u"箱"_s;
const QString areaAnswer = u"回答"_s;
const QString areaQuestion = u"問題"_s;
const QString areaSubQuestion = u"小問"_s;
const QString areaFullAnswer = u"正解"_s;
const QString areaMessage = u"表示"_s;
const QString areaConfirmation = u"確認"_s;
const QString areaReview = u"復習"_s;

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
  lines.replace(u'\n', u"\n    "_s);
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
  m_terminal.show(areaBox, text + u"（空の行でOK）"_s);
  while (const std::optional<QString> line = m_terminal.readLine()) {
    if (line->isEmpty() || *line == u":ok") break;
    m_terminal.print(areaBox, u"先に空の行を入れてください。"_s);
  }
  m_terminal.show(areaBox, QString());
}

bool TerminalDialogs::ask(const QString& text) {
  m_terminal.show(areaBox, text + u"（:yes / :no）"_s);
  bool yes = false;
  while (const std::optional<QString> line = m_terminal.readLine()) {
    yes = *line == u":yes";
    if (yes || *line == u":no") break;
    m_terminal.print(areaBox, u"先に :yes か :no を入れてください。"_s);
  }
  m_terminal.show(areaBox, QString());
  return yes;
}

void TerminalSpeaker::speak(const Utterance& utterance) {
  m_terminal.print(u"発声"_s, taggedText(utterance));
}

void TerminalSpeaker::stop() {
  m_terminal.print(u"発声停止"_s, QString());
}

void TerminalLogin::setUserId(const QString& text) {
  userId = text;
  m_terminal.show(u"ユーザーID"_s, text);
}

void TerminalLogin::showEngineTrouble() {
  m_terminal.show(areaBox, u"データベースを使えません。Tavoli を入れ直してください。"_s);
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
  m_terminal.show(u"時間"_s, time.used >= 1 ? u"%1秒　時間切れ"_s.arg(time.seconds) : QString());
}

template <class Screen>
void TerminalAnswers<Screen>::awaitConfirmation(bool awaited) {
  m_terminal.show(areaConfirmation, awaited ? u"空の行で次に進みます。"_s : QString());
}

template class TerminalAnswers<PracticeScreen>;
template class TerminalAnswers<ReviewScreen>;

void TerminalPractice::showCaption(const QString& text) {
  m_terminal.show(u"見出し"_s, text);
}

void TerminalPractice::showSource(const QString& text) {
  m_terminal.show(u"出典"_s, text);
}

void TerminalPractice::showMiniTest(const MarkedText& text) {
  m_terminal.show(u"小試験"_s, withMarks(text));
}

void TerminalPractice::showLog(const QStringList& runLog, bool shown) {
  m_terminal.show(u"経過"_s, shown ? runLog.join(u'\n') : QString());
}

void TerminalPractice::showCounts(const RunCounts& counts) {
  QStringList parts;
  const QStringList levels = {u"中学"_s, u"高校"_s, u"専門"_s};
  for (size_t i = 0; i < counts.run.words.size(); ++i) {
    if (counts.run.words[i] + counts.run.sentences[i] > 0)
      parts.append(u"%1 単語・熟語 %2 例文 %3"_s.arg(levels[static_cast<qsizetype>(i)])
                       .arg(counts.run.words[i])
                       .arg(counts.run.sentences[i]));
  }
  m_terminal.show(u"回数"_s, parts.join(u"、"_s));
}

void TerminalPractice::showStatus(StatusPanel panel, const QString& text) {
  m_terminal.show(u"状態%1"_s.arg(static_cast<int>(panel)), text);
}

void TerminalPractice::begin(int loadTotal) {
  m_loadTotal = loadTotal;
}

bool TerminalPractice::reached(int loadDone) {
  m_terminal.show(u"読込"_s, u"%1／%2"_s.arg(loadDone).arg(m_loadTotal));
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
