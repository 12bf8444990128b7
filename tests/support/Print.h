#pragma once

#include <QString>

#include <ostream>

// Lets GoogleTest show texts in its messages.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << qPrintable(text) << '"';
}
