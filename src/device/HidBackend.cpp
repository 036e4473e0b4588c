#include "HidBackend.h"

void HidBackend::reportDeviceChange()
{
    // Direct on the backend's thread, queued from any other.
    QMetaObject::invokeMethod(
        this, [this] { emit devicePluggined(true); }, Qt::AutoConnection);
}
