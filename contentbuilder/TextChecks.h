#pragma once

#include <QString>

// What no text of the content may hold. Each check returns a sentence that names the mistake, empty
// when there is none; `name` is what the text is called in it.
namespace tavoli {

/// The separators of packed records.
QString separatorProblem(const QString& name, const QString& text);

/// Display marks that do not pair or that nest.
QString markProblem(const QString& name, const QString& text);

}  // namespace tavoli
