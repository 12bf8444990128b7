// SPDX-License-Identifier: GPL-3.0-or-later

#include "speech/JapaneseWords.h"

#ifdef TAVOLI_MECAB
#include <QFile>
#include <QFileInfo>

#include <mecab.h>
#endif

namespace tavoli {

#ifdef TAVOLI_MECAB

struct JapaneseWords::Engine {
  std::unique_ptr<MeCab::Tagger> tagger;
};

namespace {

/// Where the dictionary's entries name the part of speech, its kinds, and the pronunciation.
constexpr int partField = 0;
constexpr int kindField = 1;
constexpr int kindOfKindField = 2;
constexpr int saidField = 8;

JapaneseWord wordOf(const MeCab::Node& node) {
  const QStringList fields = QString::fromUtf8(node.feature).split(u',');
  JapaneseWord word{QString::fromUtf8(node.surface, node.length), {}, JapaneseWord::Kind::other};
  if (fields.size() > saidField) word.said = fields[saidField];
  if (fields[partField] != QStringLiteral("名詞")) return word;
  if (fields[kindField] == QStringLiteral("数")) word.kind = JapaneseWord::Kind::number;
  if (fields[kindOfKindField] == QStringLiteral("助数詞")) word.kind = JapaneseWord::Kind::counter;
  return word;
}

}  // namespace

std::optional<JapaneseWords> JapaneseWords::open(const QString& dictionary,
                                                 const QString& ownList) {
  if (!QFileInfo::exists(dictionary + QStringLiteral("/sys.dic"))) return std::nullopt;
  // Settings of the user's for MeCab are not ours.
  std::vector<QByteArray> words = {"mecab", "-r", "/dev/null", "-d", QFile::encodeName(dictionary)};
  if (QFileInfo::exists(ownList)) {
    words.emplace_back("-u");
    words.push_back(QFile::encodeName(ownList));
  }
  std::vector<char*> arguments;
  arguments.reserve(words.size());
  for (QByteArray& word : words) arguments.push_back(word.data());
  auto engine = std::make_unique<Engine>();
  engine->tagger.reset(MeCab::createTagger(static_cast<int>(arguments.size()), arguments.data()));
  if (!engine->tagger) return std::nullopt;
  return JapaneseWords(std::move(engine));
}

std::vector<JapaneseWord> JapaneseWords::split(const QString& text) const {
  std::vector<JapaneseWord> words;
  const QByteArray bytes = text.toUtf8();
  for (const MeCab::Node* node = m_engine->tagger->parseToNode(bytes.constData(), bytes.size());
       node; node = node->next)
    if (node->stat == MECAB_NOR_NODE || node->stat == MECAB_UNK_NODE)
      words.push_back(wordOf(*node));
  return words;
}

#else

struct JapaneseWords::Engine {};

std::optional<JapaneseWords> JapaneseWords::open(const QString&, const QString&) {
  return std::nullopt;
}

std::vector<JapaneseWord> JapaneseWords::split(const QString&) const {
  return {};
}

#endif

JapaneseWords::JapaneseWords(std::unique_ptr<Engine> engine) : m_engine(std::move(engine)) {}
JapaneseWords::JapaneseWords(JapaneseWords&&) noexcept = default;
JapaneseWords& JapaneseWords::operator=(JapaneseWords&&) noexcept = default;
JapaneseWords::~JapaneseWords() = default;

}  // namespace tavoli
