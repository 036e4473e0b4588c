#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

class Clock;
class DialogDeviceConnect;
class ModuleKeyboard;
class QButtonGroup;
class QFrame;
class QStackedWidget;
class QWidget;

// The frame the pages with an on-screen keyboard share: the keyboard in a white card on top;
// below, a grey column of checkable buttons that choose what the stacked pages beside it show.
namespace KeyboardPageFrame {

struct Parts
{
    QFrame* card = nullptr;             // named frameT, the keyboard's card
    ModuleKeyboard* keyboard = nullptr; // named frameKeyboard
    QFrame* column = nullptr;
    QButtonGroup* group = nullptr;   // ids 0 up, in the order of the names
    QStackedWidget* stack = nullptr; // named stackedWidget, empty
};

// Builds the parts on page, which gets its layout. columnName and groupName name the column and
// its group; buttonNames the buttons, whose texts the page sets.
Parts build(QWidget* page, DialogDeviceConnect* device, Clock* clock, QSize keyboardSize,
            const QString& columnName, const QString& groupName, const QStringList& buttonNames);

// The style of those parts, for the page's own style sheet to go on from.
QString styleSheet(const QString& columnName);

} // namespace KeyboardPageFrame
