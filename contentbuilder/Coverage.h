// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <optional>
#include <vector>

#include "contentbuilder/ContentTable.h"

namespace tavoli {

/// How much of a list of headwords the tables hold. JTDIC's words count for STDIC too, and those of
/// both for a specialist dictionary.
struct Coverage {
  struct Share {
    QString table;
    int held = 0;
  };
  int headwords = 0;
  std::vector<Share> shares;
  QStringList missing;  ///< headwords that no table holds
};

/// The list has a headword a line, in the first column; the third may name its other spellings,
/// separated by "|". Nothing when the list is not UTF-8.
std::optional<Coverage> coverageOf(const QByteArray& list, const std::vector<ContentTable>& tables);

}  // namespace tavoli
