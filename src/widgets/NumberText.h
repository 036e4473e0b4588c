#pragma once

#include <QString>

// How the pages read a number that a user typed into a box: at most the first 100 bytes, up to
// the first character that is neither a digit nor a point, so that a unit after the number
// falls away. Anything else reads as 0.
namespace NumberText {

inline constexpr int kMaxBytes = 100;

// The leading number part of the text ("1.25 mm" gives "1.25").
QByteArray leadingNumber(const QString& text);
double toDouble(const QString& text);

} // namespace NumberText
