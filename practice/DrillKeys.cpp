// SPDX-License-Identifier: GPL-3.0-or-later

#include "practice/DrillKeys.h"

#include <algorithm>

#include "practice/PracticeLoop.h"

using namespace Qt::StringLiterals;

namespace tavoli {

namespace {

const QString exitTip = u"F6 ｷｰでプログラムを終了します。"_s;

using PressedInLoop = std::function<void(PracticeLoop& loop, Pressed pressed)>;

/// Whether it was the key or the button makes no difference.
PressedInLoop practice(void (PracticeLoop::*press)()) {
  return [press](PracticeLoop& loop, Pressed) { (loop.*press)(); };
}

PressedInLoop review(void (ReviewDrill::*press)()) {
  return [press](PracticeLoop& loop, Pressed) { (loop.review().*press)(); };
}

}  // namespace

const DrillKey* DrillKeys::find(FunctionKey key) const {
  for (const auto* row : {&left, &right}) {
    const auto found =
        std::find_if(row->begin(), row->end(), [&](const DrillKey& k) { return k.key == key; });
    if (found != row->end()) return &*found;
  }
  return nullptr;
}

std::vector<DrillKey> DrillKeys::inOrder() const {
  std::vector<DrillKey> keys = left;
  keys.insert(keys.end(), right.begin(), right.end());
  std::sort(keys.begin(), keys.end(),
            [](const DrillKey& a, const DrillKey& b) { return a.key < b.key; });
  return keys;
}

const DrillKeys& practiceKeys() {
  static const DrillKeys keys{
      {{FunctionKey::F1, 0, u"正解"_s, u"正解F1(&Z)"_s,
        u"F1 ｷｰ又は Ａlt ｷｰ ＋ Z ｷｰで正解を表示します。"_s, practice(&PracticeLoop::showAnswer)},
       {FunctionKey::F2, 1, u"次小問"_s, u"次小問F2(&X)"_s,
        u"F２ ｷｰ又は Ａlt ｷｰ ＋ X ｷｰで次の小問に移ります。"_s,
        practice(&PracticeLoop::nextSubQuestion)},
       {FunctionKey::F3, 2, u"次問題"_s, u"次問題F3(&C)"_s,
        u"Ｆ３ ｷｰ又は Ａlt ｷｰ ＋ C ｷｰで次の問題に移ります。"_s, practice(&PracticeLoop::nextItem)},
       {FunctionKey::F4, 3, u"前問題"_s, u"前問題F4(&V)"_s,
        u"Ｆ４ ｷｰ又は  Ａlｔ ｷｰ ＋ Ｖ ｷｰで一つ前の問題に移ります。"_s,
        practice(&PracticeLoop::previousItem)},
       {FunctionKey::F11, 10, u"知っている"_s, u"知っているF11(&L)"_s,
        u"F11 ｷｰ又は Ａlt ｷｰ ＋ L ｷｰで『全然』の小問を『うろ覚え』にします。"_s,
        [](PracticeLoop& loop, Pressed pressed) { loop.markKnown(pressed); }}},
      {{FunctionKey::F9, 8, u"問題印刷"_s, u"問題印刷 F9"_s,
        u"F９ｷｰで この問題を終了時に印刷します。"_s, practice(&PracticeLoop::requestPrint)},
       {FunctionKey::F7, 6, u"レッスン変更"_s, u"レッスン変更 F7"_s,
        u"F7 ｷｰで別のレッスンファイルに変更します。"_s,
        practice(&PracticeLoop::requestLessonChange)},
       {FunctionKey::F6, 5, u"終了"_s, u"終了 F6"_s, exitTip,
        practice(&PracticeLoop::requestExit)}}};
  return keys;
}

const DrillKeys& reviewKeys() {
  static const DrillKeys keys{
      {{FunctionKey::F1, 0, u"正解"_s, u"正解 F1(&Z)"_s,
        u"F1 ｷｰ又は Ａlt ｷｰ ＋ Z ｷｰで正解を表示します。"_s, review(&ReviewDrill::showAnswer)},
       {FunctionKey::F11, 10, u"次へ"_s, u" 次へ F11 ( &L )"_s,
        u"F11 ｷｰ又は Ａlt ｷｰ ＋ L ｷｰで次の問題に移ります。"_s,
        review(&ReviewDrill::nextReviewItem)}},
      {{FunctionKey::F6, 5, u"終了"_s, u"終了 F6"_s, exitTip, review(&ReviewDrill::requestExit)}}};
  return keys;
}

const MenuCommand& reshuffleCommand() {
  static const MenuCommand command{u"menu2"_s, u"順不同出題"_s, &PracticeLoop::reshuffle};
  return command;
}

const MenuCommand& logCommand() {
  static const MenuCommand command{u"menu3"_s, u"練習経過表示"_s, &PracticeLoop::toggleLog};
  return command;
}

const std::vector<MenuCommand>& comparisonCommands() {
  static const std::vector<MenuCommand> commands = [] {
    std::vector<MenuCommand> all;
    for (const ComparisonChoice& choice : comparisonChoices()) {
      const auto n = static_cast<int>(all.size());
      all.push_back({u"menu4%1"_s.arg(n + 1), choice.caption,
                     [n](PracticeLoop& loop) { loop.chooseComparison(n); }});
    }
    return all;
  }();
  return commands;
}

const std::vector<MenuCommand>& timeUpCommands() {
  static const std::vector<MenuCommand> commands = [] {
    std::vector<MenuCommand> all;
    for (const QString& caption : {u"音なし"_s, u"ポン"_s, u"\"Time is up.\" 発音"_s}) {
      const auto n = static_cast<int>(all.size());
      all.push_back({u"menuTimeUp%1"_s.arg(n + 1), caption,
                     [n](PracticeLoop& loop) { loop.chooseTimeUpSound(n); }});
    }
    return all;
  }();
  return commands;
}

}  // namespace tavoli
