#include "KeyStateTracker.h"

#include <QKeyEvent>

namespace {

struct KeyPair
{
    int virtualKey;
    int qtKey;
};

// Virtual keys outside the letters and digits, which share their codes with Qt::Key.
constexpr KeyPair keyPairs[] = {
    {.virtualKey = 0x08, .qtKey = Qt::Key_Backspace}, {.virtualKey = 0x09, .qtKey = Qt::Key_Tab},
    {.virtualKey = 0x0D, .qtKey = Qt::Key_Return},    {.virtualKey = 0x10, .qtKey = Qt::Key_Shift},
    {.virtualKey = 0x11, .qtKey = Qt::Key_Control},   {.virtualKey = 0x12, .qtKey = Qt::Key_Alt},
    {.virtualKey = 0x1B, .qtKey = Qt::Key_Escape},    {.virtualKey = 0x20, .qtKey = Qt::Key_Space},
    {.virtualKey = 0x25, .qtKey = Qt::Key_Left},      {.virtualKey = 0x26, .qtKey = Qt::Key_Up},
    {.virtualKey = 0x27, .qtKey = Qt::Key_Right},     {.virtualKey = 0x28, .qtKey = Qt::Key_Down},
    {.virtualKey = 0x2E, .qtKey = Qt::Key_Delete},
};

int qtKeyOf(int virtualKey)
{
    if ((virtualKey >= '0' && virtualKey <= '9') || (virtualKey >= 'A' && virtualKey <= 'Z'))
        return virtualKey;
    for (const KeyPair& pair : keyPairs) {
        if (pair.virtualKey == virtualKey) return pair.qtKey;
    }
    return 0;
}

} // namespace

KeyStateTracker::KeyStateTracker(QObject* application) : QObject(application)
{
    application->installEventFilter(this);
}

qint16 KeyStateTracker::keyState(int virtualKey) const
{
    const State state = states.value(qtKeyOf(virtualKey));
    return static_cast<qint16>((state.down ? 0x8000 : 0) | (state.toggled ? 1 : 0));
}

bool KeyStateTracker::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if ((type == QEvent::KeyPress || type == QEvent::KeyRelease) && watched->isWindowType()) {
        const auto* key = static_cast<QKeyEvent*>(event);
        State& state = states[key->key()];
        if (type == QEvent::KeyPress && !key->isAutoRepeat()) {
            state.down = true;
            state.toggled = !state.toggled;
        } else if (type == QEvent::KeyRelease && !key->isAutoRepeat()) {
            state.down = false;
        }
    } else if (type == QEvent::ApplicationDeactivate) {
        // Keys let go elsewhere never reach us: nothing stays held once the focus is gone.
        for (State& state : states)
            state.down = false;
    }
    return false;
}
