#pragma once

#include <QImage>

// The macro page's small pictures: the tools' glyphs on a 24-unit grid, and the two round
// pop-up buttons of a square.
namespace MacroPageArt {

enum class Tool { Add, Rename, Delete, Record, Stop, Insert, Clear, Save };

// A tool glyph, 36 pixels square (shown at 16 to 18): grey, or red for Record; white when
// light, for a selected row of the list.
QImage tool(Tool tool, bool light = false);

// The pop-up buttons over a square, 36 pixels (shown at 18): a purple disc with a plus to
// insert, a red one with a cross to delete.
QImage squareInsert();
QImage squareDelete();

// A ticked check box of the insert dialog, 36 pixels (shown at 18): a white tick on purple.
QImage checkedBox();

// Draws every picture of the page into folder (ends with '/').
void saveAll(const QString& folder);

} // namespace MacroPageArt
