#include "VirtualDiscoverySet.h"

#include "VirtualByDevice.h"
#include "VirtualHidBackend.h"
#include "VirtualJmDevice.h"
#include "VirtualReceiver.h"
#include "VirtualSilentKeyboard.h"
#include "VirtualWsDevice.h"

namespace {

struct Usb
{
    quint16 vendorId;
    quint16 productId;
};

// Where each device of the set sits. The receivers and the unknown keyboard use other vendor
// ids of the cloud pass's default list, so that the pass walks more than one vendor.
constexpr Usb kReceiver{.vendorId = 0x25A7, .productId = 0xFA70};
constexpr Usb kEmptyReceiver{.vendorId = 0x25A7, .productId = 0xFA71};
constexpr Usb kUnknownKeyboard{.vendorId = 0x0461, .productId = 0x4E6B};
constexpr Usb kSilentKeyboard{.vendorId = 0x3151, .productId = 0x5041};
constexpr Usb kJm{.vendorId = 0x3554, .productId = 0xF5D5};
constexpr quint32 kReceiverId = 0x5A01;
constexpr quint32 kEmptyReceiverId = 0x5A02;

QByteArray pathBase(Usb usb)
{
    return QString::asprintf("sim:%04X:%04X", usb.vendorId, usb.productId).toLatin1();
}

} // namespace

VirtualDiscoverySet VirtualDiscoverySet::addTo(VirtualHidBackend& backend,
                                               const SimulatorOptions& options)
{
    VirtualDiscoverySet set;
    set.receiver =
        backend.add<VirtualReceiver>(VirtualReceiver::Identity{.receiverId = kReceiverId,
                                                               .vendorId = kReceiver.vendorId,
                                                               .productId = kReceiver.productId},
                                     kPairedKeyboardId, pathBase(kReceiver));
    set.emptyReceiver = backend.add<VirtualReceiver>(
        VirtualReceiver::Identity{.receiverId = kEmptyReceiverId,
                                  .vendorId = kEmptyReceiver.vendorId,
                                  .productId = kEmptyReceiver.productId},
        0u, pathBase(kEmptyReceiver));
    set.unknownKeyboard =
        backend.addWiredKeyboard(kUnknownKeyboardId, options.firmwareVersion,
                                 kUnknownKeyboard.vendorId, kUnknownKeyboard.productId);
    const VirtualWsDevice::Identity ws;
    set.ws = backend.add<VirtualWsDevice>(ws, pathBase({ws.vendorId, ws.productId}));
    const VirtualByDevice::Identity by;
    set.by = backend.add<VirtualByDevice>(by, pathBase({by.vendorId, by.productId}));
    set.jm = backend.add<VirtualJmDevice>(kJm.vendorId, kJm.productId, pathBase(kJm));
    if (options.silentKeyboard)
        set.silent = backend.add<VirtualSilentKeyboard>(
            kSilentKeyboard.vendorId, kSilentKeyboard.productId, pathBase(kSilentKeyboard));
    return set;
}
