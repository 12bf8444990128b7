// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "system/Paper.h"

namespace tavoli {

class Dialogs;

/// Prints a document, or where there is no printer, or it refuses, writes it as a PDF file where
/// the learner wants it: `choosePdf` gives the path, empty for nowhere. Tells how a file turned
/// out.
void printOrSave(Paper& paper, Dialogs& dialogs, const QString& title, const DrawDocument& draw,
                 const std::function<QString()>& choosePdf);

}  // namespace tavoli
