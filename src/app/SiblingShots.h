#pragma once

#include <QString>

class DialogDeviceConsole;
class MainWindow;
class Platform;

// The screenshot program's pictures of the engineering console and of a sibling driver hosted
// in the hub. The sibling is the stand-in built with the tests, installed as the BY driver of
// the copy of the program's files the hub runs in.
namespace SiblingShots {

// Before the window is made: the stand-in as the BY driver under programDir. False when the
// stand-in wasn't built (the tests' target), and the hosting picture is then left out.
bool installStandIn(const QString& programDir);
// The console over the connected keyboard, with a command typed and sent by hand.
DialogDeviceConsole* openConsole(MainWindow& window, Platform& platform);
// Clicks the card of the BY device; false when there is none.
bool openSibling(MainWindow& window);
// The stand-in's window stands in the hub's page.
bool siblingShown(const MainWindow& window);
// Ends the stand-in, which outlives the hub otherwise.
void endStandIn(Platform& platform);

} // namespace SiblingShots
