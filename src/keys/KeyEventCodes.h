#pragma once

#include <QString>
#include <QtGlobal>

class QKeyEvent;

// Which key a key event is: the key vocabulary names keys by their set-1 scan code (E0 in the
// high byte for extended keys), the code a Windows key event carries. Key events on other systems
// are brought to that same code, so that a macro recorded anywhere holds the same key codes and
// the key test names the keys a Windows user sees.
namespace KeyEventCodes {

// The set-1 scan code of the key of a key event; 0 when the key has none (media keys, F13 up).
quint16 scanCode(const QKeyEvent& event);

// What a macro records of a key: its key code and name from the key vocabulary. Code 0 and no
// name for a key the vocabulary can't reach (no scan code, or one no row holds).
struct RecordedKey
{
    quint16 code = 0;
    QString name;
};
RecordedKey recordedKey(const QKeyEvent& event);

// The scan code of an evdev key code (a Linux X11 or Wayland key code minus 8); 0 if unknown.
quint16 scanOfEvdev(quint32 evdev);

} // namespace KeyEventCodes
