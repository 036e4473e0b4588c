#pragma once

#include <QHash>
#include <QObject>

// GetKeyState from Qt's own key events: GetKeyState, too, reports the keys as this program's
// input has seen them, not the live keyboard. Watches the application's windows, so a key is
// counted once however far its event travels.
class KeyStateTracker : public QObject
{
    Q_OBJECT

public:
    explicit KeyStateTracker(QObject* application);

    // The GetKeyState word: 0x8000 set while down (so the short is negative), bit 0 toggled by
    // each press. Keys without a Qt counterpart read 0.
    qint16 keyState(int virtualKey) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct State
    {
        bool down = false;
        bool toggled = false;
    };
    QHash<int, State> states; // by Qt::Key
};
