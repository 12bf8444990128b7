// SPDX-License-Identifier: GPL-3.0-or-later

#include "contentbuilder/WordForms.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <algorithm>

namespace tavoli {

namespace {

/// The forms of one word a line.
const char* const irregularForms = R"(be am is are was were been being
have has had having
do does did done doing
go goes went gone going
can could cannot
will would
shall should
may might
a an
good better best well
bad worse worst ill badly
many much more most
little less least
far farther farthest further furthest
old elder eldest older oldest
man men
woman women
child children
person people
foot feet
tooth teeth
goose geese
mouse mice
ox oxen
analysis analyses
basis bases
crisis crises
hypothesis hypotheses
phenomenon phenomena
criterion criteria
medium media
datum data
awake awoke awoken
bear bore borne born
beat beaten
become became
begin began begun
bend bent
bind bound
bite bit bitten
bleed bled
blow blew blown
break broke broken
breed bred
bring brought
build built
burn burnt
buy bought
catch caught
choose chose chosen
cling clung
come came
creep crept
deal dealt
dig dug
draw drew drawn
dream dreamt
drink drank drunk
drive drove driven
eat ate eaten
fall fell fallen
feed fed
feel felt
fight fought
find found
flee fled
fly flew flown
forbid forbade forbidden
forecast forecasts
foresee foresaw foreseen
forget forgot forgotten
forgive forgave forgiven
freeze froze frozen
get got gotten
give gave given
grind ground
grow grew grown
hang hung
hear heard
hide hid hidden
hold held
keep kept
kneel knelt
know knew known
lay laid
lead led
lean leant
leap leapt
learn learnt
leave left
lend lent
lie lay lain
light lit
lose lost
make made
mean meant
meet met
mistake mistook mistaken
overcome overcame
oversee oversaw overseen
overtake overtook overtaken
pay paid
prove proven
ride rode ridden
ring rang rung
rise rose risen
run ran
say said
see saw seen
seek sought
sell sold
send sent
sew sewn
shake shook shaken
shine shone
shoot shot
show shown
shrink shrank shrunk
sing sang sung
sink sank sunk
sit sat
sleep slept
slide slid
smell smelt
sow sown
speak spoke spoken
speed sped
spell spelt
spend spent
spill spilt
spin spun
spoil spoilt
spring sprang sprung
stand stood
steal stole stolen
stick stuck
sting stung
strike struck stricken
strive strove striven
swear swore sworn
sweep swept
swell swollen
swim swam swum
swing swung
take took taken
teach taught
tear tore torn
tell told
think thought
throw threw thrown
undergo underwent undergone
understand understood
undertake undertook undertaken
uphold upheld
wake woke woken
wear wore worn
weave wove woven
weep wept
win won
wind wound
withdraw withdrew withdrawn
withhold withheld
write wrote written
)";

QHash<QString, QStringList> irregulars() {
  QHash<QString, QStringList> forms;
  for (const QString& line : QString::fromLatin1(irregularForms).split(u'\n', Qt::SkipEmptyParts)) {
    const QStringList words = line.split(u' ');
    for (const QString& word : words) forms[word] += words;
  }
  return forms;
}

/// Every form that a word takes by rule or by exception; some that it does not take are no harm.
QSet<QString> formsOf(const QString& word) {
  static const QHash<QString, QStringList> exceptions = irregulars();
  const QStringList endings = {QStringLiteral("ed"), QStringLiteral("ing"), QStringLiteral("er"),
                               QStringLiteral("est"), QStringLiteral("es")};
  QSet<QString> forms = {word, word + u's', word + u'd', word + u'r', word + QStringLiteral("st")};
  const auto add = [&](const QString& stem) {
    for (const QString& ending : endings) forms.insert(stem + ending);
  };
  const QString stem = word.chopped(1);
  add(word);
  add(word + word.back());
  if (word.endsWith(u'e')) add(stem);
  if (word.endsWith(u'y')) add(stem + u'i');
  if (word.endsWith(u'c')) add(word + u'k');
  if (word.endsWith(u'f')) forms.insert(stem + QStringLiteral("ves"));
  if (word.endsWith(QStringLiteral("fe"))) forms.insert(word.chopped(2) + QStringLiteral("ves"));
  if (word.endsWith(QStringLiteral("ie"))) forms.insert(word.chopped(2) + QStringLiteral("ying"));
  for (const QString& form : exceptions.value(word)) forms.insert(form);
  return forms;
}

QString withoutPunctuation(const QString& word) {
  qsizetype begin = 0;
  qsizetype end = word.size();
  while (begin < end && !word[begin].isLetterOrNumber()) ++begin;
  while (end > begin && !word[end - 1].isLetterOrNumber()) --end;
  return word.sliced(begin, end - begin);
}

/// The words of a sentence; a contraction or compound is followed by its parts.
QStringList wordsOf(const QString& sentence) {
  static const QHash<QString, QString> shortened = {
      {QStringLiteral("m"), QStringLiteral("am")},
      {QStringLiteral("re"), QStringLiteral("are")},
      {QStringLiteral("s"), QStringLiteral("is")},
      {QStringLiteral("ll"), QStringLiteral("will")},
      {QStringLiteral("ve"), QStringLiteral("have")},
      {QStringLiteral("d"), QStringLiteral("would")},
      {QStringLiteral("can"), QStringLiteral("can")},
      {QStringLiteral("won"), QStringLiteral("will")}};
  QStringList words;
  for (const QString& piece : sentence.toLower().split(u' ', Qt::SkipEmptyParts)) {
    const QString word = withoutPunctuation(piece);
    if (word.isEmpty()) continue;
    words.append(word);
    for (const QChar seam : {u'\'', u'-', u'/'}) {
      if (!word.contains(seam)) continue;
      for (const QString& part : word.split(seam, Qt::SkipEmptyParts)) {
        words.append(shortened.value(part, part));
        if (seam == u'\'' && part.endsWith(u'n')) words.append(part.chopped(1));
        if (seam == u'\'' && part == QStringLiteral("s")) words.append(QStringLiteral("has"));
        if (seam == u'\'' && part == QStringLiteral("d")) words.append(QStringLiteral("had"));
      }
    }
  }
  return words;
}

bool standsForOthers(const QString& word, bool only, bool last) {
  static const QStringList anywhere = {QStringLiteral("A"),       QStringLiteral("B"),
                                       QStringLiteral("A's"),     QStringLiteral("one's"),
                                       QStringLiteral("oneself"), QStringLiteral("doing"),
                                       QStringLiteral("someone"), QStringLiteral("something")};
  static const QStringList atTheEnd = {QStringLiteral("do"), QStringLiteral("done")};
  if (word.contains(u'～')) return true;
  return !only && (anywhere.contains(word) || (last && atTheEnd.contains(word)));
}

}  // namespace

bool uses(const QString& sentence, const QString& headword) {
  const QStringList words = wordsOf(sentence);
  const QStringList parts = headword.split(u' ', Qt::SkipEmptyParts);
  auto at = words.begin();
  for (qsizetype i = 0; i < parts.size(); ++i) {
    if (standsForOthers(parts[i], parts.size() == 1, i + 1 == parts.size())) continue;
    const QString part = withoutPunctuation(parts[i].toLower());
    if (part.isEmpty()) continue;
    const QSet<QString> forms = formsOf(part);
    at = std::find_if(at, words.end(), [&](const QString& word) { return forms.contains(word); });
    if (at == words.end()) return false;
    ++at;
  }
  return true;
}

}  // namespace tavoli
