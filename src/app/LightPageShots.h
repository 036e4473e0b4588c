#pragma once

#include <QString>

class MainWindow;

// The light page's part of the screenshot program: three paintings made key by key as a user
// makes them and kept as works, then the page with the last painting and the works list.
namespace LightPageShots {

// Paints and saves the works, then shows the light page with the first work chosen.
void paintWorks(MainWindow& window);

} // namespace LightPageShots
