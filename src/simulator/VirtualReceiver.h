#pragma once

#include "NativeKeyboardModel.h"
#include "VirtualDevice.h"

#include <QByteArray>
#include <QList>
#include <memory>

// A 2.4 GHz receiver of the cloud family, on the wired route (usage page FFFF: input usage 1,
// command usage 2, 65-byte feature reports). 8F answers with the receiver's own id, above
// 0x1000, which tells the host to ask for the keyboard behind it: F6 0A starts a new link,
// F7 reports the link (reply byte 6 is 1 once the keyboard is there), the keyboard's battery
// (byte 2) and whether a relayed request is still under way (byte 1 is 0 once it is done), FC
// gives the keyboard's id. Every other command goes to the paired keyboard's firmware.
class VirtualReceiver : public VirtualDevice
{
public:
    struct Identity
    {
        quint32 receiverId = 0x5A01;
        quint16 vendorId = 0x25A7;
        quint16 productId = 0xFA70;
    };
    // F7 polls after F6 0A before the keyboard answers, and before a relayed 8F is done.
    static constexpr int kLinkPolls = 2;
    static constexpr int kRelayPolls = 2;

    // pairedId 0: nothing is paired; the receiver answers but has no keyboard to name.
    VirtualReceiver(std::mutex& backendLock, Clock* clock, const Identity& identity,
                    quint32 pairedId, const QByteArray& pathBase);
    ~VirtualReceiver() override;

    QByteArray commandPath() const { return pathBase + ":2"; }
    QByteArray inputPath() const { return pathBase + ":1"; }
    quint16 vendorId() const { return identity.vendorId; }
    quint16 productId() const { return identity.productId; }
    bool hasKeyboard() const { return keyboard != nullptr; }
    // The paired keyboard's firmware; null when nothing is paired. Not locked.
    NativeKeyboardModel* pairedModel() { return keyboard.get(); }

    void setBattery(quint8 percent);
    // The commands received, oldest first. Locked.
    QList<quint8> receivedCommands() const;

protected:
    QList<HidDeviceInfo> interfaces() const override;
    int sendFeatureReport(int interfaceIndex, const quint8* data, size_t length) override;
    int getFeatureReport(int interfaceIndex, quint8* data, size_t length) override;
    void onUnplugged() override;

private:
    QByteArray answer(const QByteArray& frame);
    QByteArray linkStatus();

    Identity identity;
    QByteArray pathBase;
    std::unique_ptr<NativeKeyboardModel> keyboard;
    QByteArray featureBuffer;
    QList<quint8> commands;
    quint8 battery = 76;
    bool linkUp;
    int linkPolls = 0;
    int relayPolls = 0;
};
