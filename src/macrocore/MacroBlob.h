#pragma once

#include <QByteArray>

// The blob that a macro's pages carry to the keyboard: the repeat count (u16 little-endian),
// the packed stream, then zeros up to a whole number of pages.
namespace MacroBlob {

constexpr int kPageSize = 56;  // payload bytes of one CMD_SET_MACRO page
constexpr int kRepeatSize = 2; // the u16 in front of the stream

// Repeat count, stream and padding; a blob that already fills its last page gets none.
QByteArray build(quint16 repeat, const QByteArray& stream);
// Number of pages of a built blob: its length divided by the page size.
int pageCount(const QByteArray& blob);
// The payload of page `index` (from 0); zeros past the blob's end.
QByteArray page(const QByteArray& blob, int index);

} // namespace MacroBlob
