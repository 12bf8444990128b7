// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/Contractions.h"

#include <array>

namespace tavoli {

namespace {

// The codes in stored records count these texts from 1: the order never changes. Blanks at either
// end of a text are part of it.
constexpr std::array<QStringView, contractionCount> contractionPairs = {
    u"I'm ",      u"I am ",      u"I'll ",     u"I will ",    u"I've ",     u"I have ",
    u"we're ",    u"we are ",    u"we'll ",    u"we will ",   u"we've ",    u"we have ",
    u"you're ",   u"you are ",   u"you'll ",   u"you will ",  u"you've ",   u"you have ",
    u"he'll ",    u"he will ",   u"she'll ",   u"she will ",  u"it'll ",    u"it will ",
    u"they're ",  u"they are ",  u"they'll ",  u"they will ", u"they've ",  u"they have ",
    u"that'll ",  u"that will ", u"here're ",  u"here are ",  u"here's ",   u"here is ",
    u"there're ", u"there are ", u"there's ",  u"there is ",  u"there'll ", u"there will ",
    u"We're ",    u"We are ",    u"We'll",     u"We will",    u"We've ",    u"We have ",
    u"You're ",   u"You are ",   u"You'll",    u"You will",   u"You've ",   u"You have ",
    u"He'll",     u"He will",    u"She'll",    u"She will",   u"It'll",     u"It will",
    u"They're ",  u"They are ",  u"They'll",   u"They will",  u"They've ",  u"They have ",
    u"That'll",   u"That will",  u"Here're ",  u"Here are ",  u"Here's ",   u"Here is ",
    u"There're ", u"There are ", u"There's ",  u"There is ",  u"cannot",    u"can not",
    u"isn't",     u"is not",     u"wasn't",    u"was not",    u"aren't",    u"are not",
    u"weren't",   u"were not",   u"don't",     u"do not",     u"doesn't",   u"does not",
    u"didn't",    u"did not",    u"mustn't",   u"must not",   u"won't",     u"will not",
    u"wouldn't",  u"would not",  u"shouldn't", u"should not", u"can't",     u"can not",
    u"can't",     u"cannot",     u"couldn't",  u"could not",  u"haven't",   u"have not",
    u"hasn't",    u"has not",    u"hadn't",    u"had not",    u" aren't",   u"'re not",
    u" isn't",    u"'s not",     u"she is ",   u"she's ",     u"She is ",   u"She's ",
    u"he is ",    u"he's ",      u"He is ",    u"He's ",      u"it is ",    u"it's ",
    u"It is ",    u"It's ",      u"that is ",  u"that's ",    u"That is ",  u"That's ",
    u"What's",    u"What is",    u"What're",   u"What are",   u"Who is",    u"Who's",
    u"Who are",   u"Who're",     u"Where is",  u"Where's",    u"Where are", u"Where're",
    u"I'd ",      u"I'd ",       u"I'd ",      u"we'd ",      u"we'd ",     u"we'd ",
    u"you'd ",    u"you'd ",     u"he's ",     u"he'd ",      u"he'd ",     u"she's ",
    u"she'd ",    u"she'd ",     u"it's ",     u"it'd ",      u"it'd ",     u"they'd ",
    u"they'd ",   u"there's ",   u"there'd ",  u"there'd ",   u"We'd ",     u"We'd ",
    u"We'd ",     u"You'd ",     u"You'd ",    u"He's ",      u"He'd ",     u"He'd ",
    u"She's ",    u"She'd ",     u"She'd ",    u"It's ",      u"It'd ",     u"It'd ",
    u"They'd ",   u"They'd ",
};

/// Codes up to this one come in pairs: full form and contraction, in either order.
constexpr int lastPaired = 144;

/// The full forms of an unpaired entry "X'd " or "X's ".
QStringList fullForms(QStringView contraction) {
  const QString subject = contraction.chopped(3).toString();
  const auto with = [&](const char16_t* verb) { return subject + QString::fromUtf16(verb); };
  if (contraction.endsWith(u"'s ")) return {with(u" has ")};
  return {with(u" had "), with(u" would "), with(u" should ")};
}

}  // namespace

QString contractionText(int code) {
  if (code < 1 || code > contractionCount) return {};
  return contractionPairs[static_cast<size_t>(code - 1)].toString();
}

bool contractionFits(int code, QStringView span) {
  if (code < 1 || code > contractionCount) return false;
  if (code > lastPaired) return fullForms(contractionText(code)).contains(span);
  const int partner = code % 2 == 1 ? code + 1 : code - 1;
  return contractionText(partner) == span;
}

int contractionCode(QStringView span, QStringView text) {
  for (int code = 1; code <= contractionCount; ++code)
    if (contractionPairs[static_cast<size_t>(code - 1)] == text && contractionFits(code, span))
      return code;
  return 0;
}

}  // namespace tavoli
