#pragma once

class QWidget;

// What the programs that drive the hub without a user (screenshots, benchmarks) do in place of
// a hand on the mouse.
namespace ScriptedInput {

// A left click at the widget's middle: press and release, delivered at once.
void click(QWidget* widget);

} // namespace ScriptedInput
