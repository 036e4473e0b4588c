#pragma once

#include <QString>
#include <QtGlobal>

class MainWindow;
class QWidget;

// The key page's part of the screenshot program: bindings made through the connection as a
// user would make them, then the page with a key's bubble, the function picker open, and the
// options panel.
namespace KeyPageShots {

// Writes the bindings shown in the pictures; the caller waits for the connection to go idle.
void writeBindings(MainWindow& window);
// Shows the key page with the pointer resting on a bound key.
void showKeyPage(MainWindow& window);
// Opens the function picker over the key page with a combination half picked.
void openPicker(MainWindow& window);
void closePicker(MainWindow& window);
// Shows the options panel.
void showOptions(MainWindow& window);

// The pointer comes to rest on a key of the key page (its bubble shows), or leaves it.
void hoverKey(MainWindow& window, quint8 code);
void leaveKey(MainWindow& window, quint8 code);

// The window with the tool windows over it (bubbles, popups, pickers) painted in place, as the
// screen shows them.
bool saveComposed(QWidget& window, const QString& path);

} // namespace KeyPageShots
