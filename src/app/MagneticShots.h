#pragma once

#include <QString>

class MainWindow;

// The magnetic page's part of the screenshot program, on the wired keyboard (the one whose depth
// stream the travel test shows): travel values and switch types applied through the page as a
// user applies them, then the travel test mid-press and the calibration part-way.
namespace MagneticShots {

// Leaves the device page for the cards; the caller then opens the wired keyboard's card.
void leaveDevicePage(MainWindow& window);
// Shows the magnetic page and applies travel values to a few groups of keys; the caller waits
// for the connection to go idle before the picture.
void applyTravel(MainWindow& window);
// The switch type page with types painted on a few groups of keys.
void paintSwitchTypes(MainWindow& window);
// The test page with both tests running and a few keys typed, two of them still held.
void startTests(MainWindow& window);
// True once the streamed depth stands part-way down.
bool midPress(MainWindow& window);
// Stops the tests and opens the calibration guide, then starts the calibration from it.
void startCalibration(MainWindow& window);
// The window with the calibration's guide and progress view over it, in that order.
bool saveCalibration(MainWindow& window, const QString& path);
// Closes the progress view with its finish button.
void finishCalibration(MainWindow& window);

} // namespace MagneticShots
