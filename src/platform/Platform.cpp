#include "Platform.h"

#include <QObject>
#include <QTimer>

void Platform::keepOnTopForAWhile(QObject* context, WindowId window, int fromMs, int untilMs)
{
    constexpr quint32 keepPlace = NoMove | NoSize;
    QTimer::singleShot(fromMs, context,
                       [this, window] { setWindowPos(window, ZOrder::TopMost, {}, keepPlace); });
    QTimer::singleShot(untilMs, context,
                       [this, window] { setWindowPos(window, ZOrder::NoTopMost, {}, keepPlace); });
}
