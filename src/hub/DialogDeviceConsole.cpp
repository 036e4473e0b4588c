#include "DialogDeviceConsole.h"

DialogDeviceConsole::DialogDeviceConsole(DialogDeviceConnect* connection, QWidget* parent)
    : QDialog(parent), link(connection)
{
    setObjectName(QStringLiteral("DialogDeviceConnect"));
    setWindowTitle(tr("Orbe Studio 设备调试"));
    resize(kSize);
}
