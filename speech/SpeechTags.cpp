// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/SpeechTags.h"

#include <algorithm>
#include <array>
#include <optional>

#include "data/Text.h"

namespace tavoli {

namespace {

enum class Tag { Map, Spd, Ctx };

constexpr qsizetype beginningLength = 5;
constexpr QStringView halvesMark = u"\"=\"";
constexpr QStringView endMark = u"\"\\";

/// Which tag begins at a position of the text, from 0.
std::optional<Tag> tagAt(QStringView text, qsizetype at) {
  constexpr std::array<QStringView, 3> beginnings = {u"\\Map=", u"\\Spd=", u"\\Ctx="};
  if (at < 0 || at + beginningLength > text.size()) return std::nullopt;
  const QStringView here = text.sliced(at, beginningLength);
  for (size_t i = 0; i < beginnings.size(); ++i)
    if (here.compare(beginnings[i], Qt::CaseInsensitive) == 0) return static_cast<Tag>(i);
  return std::nullopt;
}

/// The text up to the mark, which is dropped with it; all of it where there is no mark.
QStringView takeUntil(QStringView& text, QStringView mark) {
  const qsizetype at = text.indexOf(mark);
  const QStringView taken = at < 0 ? text : text.first(at);
  text = at < 0 ? QStringView() : text.sliced(at + mark.size());
  return taken;
}

/// The value of \Spd=: up to the backslash, or where that is missing up to a blank.
QStringView takeSpeed(QStringView& text) {
  qsizetype end = 0;
  while (end < text.size() && text[end] != u'\\' && text[end] != u' ') ++end;
  const QStringView taken = text.first(end);
  text = text.sliced(end < text.size() && text[end] == u'\\' ? end + 1 : end);
  return taken;
}

bool takeQuote(QStringView& text) {
  if (!text.startsWith(u'"')) return false;
  text = text.sliced(1);
  return true;
}

/// The halves of a \Map= behind its first quote. One that ends behind its first half shows it too.
void takeHalves(QStringView& text, Utterance& utterance) {
  qsizetype end = text.indexOf(u'"');
  while (end >= 0 && !text.sliced(end).startsWith(halvesMark) &&
         !text.sliced(end).startsWith(endMark))
    end = text.indexOf(u'"', end + 1);
  const QStringView spoken = end < 0 ? text : text.first(end);
  text = end < 0 ? QStringView() : text.sliced(end);
  QStringView shown = spoken;
  if (text.startsWith(halvesMark)) {
    text = text.sliced(halvesMark.size());
    shown = takeUntil(text, endMark);
  } else if (!text.isEmpty()) {
    text = text.sliced(endMark.size());
  }
  utterance.spoken += spoken;
  utterance.shown += shown;
}

/// The text without tags that stand in it, and without those that come together when others go.
QString withoutTags(const QString& text) {
  if (!text.contains(u'\\')) return text;
  QString left;
  QStringView rest = text;
  while (!rest.isEmpty()) {
    left += rest.front();
    rest = rest.sliced(1);
    if (!left.endsWith(u'=')) continue;
    const std::optional<Tag> tag = tagAt(left, left.size() - beginningLength);
    if (!tag) continue;
    left.chop(beginningLength);
    if (tag == Tag::Spd)
      takeSpeed(rest);
    else
      takeQuote(rest);
  }
  return left;
}

enum class Half { first, last };

/// A half with a blank behind each quote that would end it too soon.
QString guarded(QStringView half, Half which) {
  QString text;
  while (!half.isEmpty()) {
    const QChar c = half.front();
    half = half.sliced(1);
    text += c;
    if (c != u'"') continue;
    const bool endsFirst = half.startsWith(u"=\"") || half == u"=";
    if (half.startsWith(u'\\') || (which == Half::first && endsFirst)) text += u' ';
  }
  return text;
}

}  // namespace

QString taggedText(const Utterance& utterance) {
  if (utterance.isEmpty()) return {};
  QString text;
  if (!utterance.context.isEmpty())
    text += QStringLiteral("\\Ctx=\"%1\"\\").arg(guarded(utterance.context, Half::last));
  if (utterance.speed > 0) text += QStringLiteral("\\Spd=%1\\").arg(utterance.speed);
  if (utterance.bare) return text + utterance.spoken;
  text += u"\\Map=\"";
  text += guarded(utterance.spoken, Half::first);
  text += halvesMark;
  text += guarded(utterance.shown, Half::last);
  text += endMark;
  return text;
}

Utterance parseTags(QStringView text, VoiceLanguage voice) {
  Utterance utterance;
  utterance.voice = voice;
  bool halves = false;
  qsizetype at = 0;
  while ((at = text.indexOf(u'\\', at)) >= 0) {
    const std::optional<Tag> tag = tagAt(text, at);
    if (!tag) {
      ++at;
      continue;
    }
    utterance.spoken += text.first(at);
    utterance.shown += text.first(at);
    text = text.sliced(at + beginningLength);
    at = 0;
    if (tag == Tag::Spd) {
      utterance.speed = std::max(0, numberOf(takeSpeed(text)));
    } else if (takeQuote(text)) {
      if (tag == Tag::Ctx) {
        if (!text.contains(endMark)) break;
        utterance.context = withoutTags(takeUntil(text, endMark).toString());
      } else {
        takeHalves(text, utterance);
        halves = true;
      }
    }
  }
  utterance.spoken = withoutTags(utterance.spoken.append(text));
  utterance.shown = withoutTags(utterance.shown.append(text));
  utterance.bare = !halves && !utterance.spoken.isEmpty();
  return utterance;
}

}  // namespace tavoli
