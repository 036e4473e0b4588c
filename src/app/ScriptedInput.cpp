#include "ScriptedInput.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>

namespace ScriptedInput {

void click(QWidget* widget)
{
    if (!widget) return;
    const QPointF at(widget->width() / 2.0, widget->height() / 2.0);
    QMouseEvent press(QEvent::MouseButtonPress, at, widget->mapToGlobal(at), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, at, widget->mapToGlobal(at), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &release);
}

} // namespace ScriptedInput
