#pragma once

#include <QString>

class MainWindow;

// The advanced keys' part of the screenshot program: a DKS key, a mod-tap key and a toggle key
// written through the connection, then each tab of the advanced mode with its key clicked (so
// that it loads into the tab) and its bubble showing; the SnapKey pair is set through its tab.
namespace AdvancedKeyShots {

inline constexpr int kTabs = 4;

// Writes the keys the tabs load; the caller waits for the connection to go idle.
void writeKeys(MainWindow& window);
// Shows tab 0 to 3 of the advanced mode with its key loaded and hovered.
void showTab(MainWindow& window, int tab);
// The picture's file name of a tab.
QString fileName(int tab);
// Opens the travel popup over the DKS tab, saves the window with it, and cancels it.
bool saveTravelPopup(MainWindow& window, const QString& path);

} // namespace AdvancedKeyShots
