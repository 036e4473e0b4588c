#pragma once

#include "MacroEvent.h"

#include <QList>
#include <QString>

// A user macro; it owns its events. The id is also the keyboard's slot.
struct Macro
{
    Macro() = default;
    Macro(const Macro&) = delete;
    Macro& operator=(const Macro&) = delete;
    ~Macro() { qDeleteAll(events); }

    quint8 id = 0;
    quint8 repeat = 1; // stored only: a key assignment takes its count from the picker
    quint8 mode = 0;
    QString name;
    QList<MacroEvent*> events;
};
