#include "HidapiBackend.h"

#include "DeviceLog.h"
#include "USBNotifier.h"

#include <cerrno>
#include <hidapi.h>

namespace {

class HidapiHandle : public HidHandle
{
public:
    explicit HidapiHandle(hid_device* d) : device(d) {}
    hid_device* device;
};

hid_device* raw(HidHandle* handle)
{
    auto* h = static_cast<HidapiHandle*>(handle);
    return h ? h->device : nullptr;
}

QString fromWide(const wchar_t* text)
{
    return text ? QString::fromWCharArray(text) : QString();
}

} // namespace

HidapiBackend::HidapiBackend()
{
    hid_init();
}

HidapiBackend::~HidapiBackend()
{
    delete notifier;
    hid_exit();
}

bool HidapiBackend::startWatching()
{
    if (notifier) return true;
    auto* watcher = new USBNotifier(this);
    if (!watcher->startWatching()) {
        delete watcher;
        return false;
    }
    notifier = watcher;
    connect(notifier, &USBNotifier::devicePluggined, this, &HidBackend::devicePluggined);
    return true;
}

QList<HidDeviceInfo> HidapiBackend::enumerate(quint16 vendorId, quint16 productId)
{
    QList<HidDeviceInfo> list;
    hid_device_info* first = hid_enumerate(vendorId, productId);
    for (hid_device_info* i = first; i; i = i->next) {
        HidDeviceInfo info;
        info.path = QByteArray(i->path);
        info.vendorId = i->vendor_id;
        info.productId = i->product_id;
        info.usagePage = i->usage_page;
        info.usage = i->usage;
        info.interfaceNumber = i->interface_number;
        info.manufacturer = fromWide(i->manufacturer_string);
        info.product = fromWide(i->product_string);
        list.append(info);
    }
    hid_free_enumeration(first);
    return list;
}

HidHandle* HidapiBackend::openPath(const QByteArray& path)
{
    errno = 0;
    hid_device* device = hid_open_path(path.constData());
    if (!device) {
        // The system's reason, taken before anything else can change it.
        const int osError = errno;
        QString reason = osError ? qt_error_string(osError) : fromWide(hid_error(nullptr));
        if (reason.isEmpty()) reason = QStringLiteral("no reason given by the system");
        qCWarning(lcDevice).noquote() << "cannot open" << path << "(" + reason + ")"
                                      << "(on Linux this is usually a missing udev rule)";
        noteOpen(path, reason);
        return nullptr;
    }
    noteOpen(path);
    return new HidapiHandle(device);
}

void HidapiBackend::close(HidHandle* handle)
{
    if (!handle) return;
    hid_close(raw(handle));
    delete handle;
}

int HidapiBackend::setNonblocking(HidHandle* handle, bool nonblocking)
{
    return handle ? hid_set_nonblocking(raw(handle), nonblocking ? 1 : 0) : -1;
}

int HidapiBackend::sendFeatureReport(HidHandle* handle, const quint8* data, size_t length)
{
    return handle ? hid_send_feature_report(raw(handle), data, length) : -1;
}

int HidapiBackend::getFeatureReport(HidHandle* handle, quint8* data, size_t length)
{
    return handle ? hid_get_feature_report(raw(handle), data, length) : -1;
}

int HidapiBackend::write(HidHandle* handle, const quint8* data, size_t length)
{
    return handle ? hid_write(raw(handle), data, length) : -1;
}

int HidapiBackend::read(HidHandle* handle, quint8* data, size_t length)
{
    return handle ? hid_read(raw(handle), data, length) : -1;
}

int HidapiBackend::readTimeout(HidHandle* handle, quint8* data, size_t length, int milliseconds)
{
    return handle ? hid_read_timeout(raw(handle), data, length, milliseconds) : -1;
}
