#pragma once

// A connection on the virtual keyboard in virtual time, for the tests that check what reached
// the firmware: the protocol's round trips, the link's faults and the pages.

#include "ConsoleModel.h"
#include "DialogDeviceConnect.h"
#include "MagnetTables.h"
#include "ManualClock.h"
#include "ModuleGenKeymapping.h"
#include "VirtualHidBackend.h"

#include <QTemporaryDir>
#include <QTest>
#include <memory>

// A connection on the virtual keyboard, with the first read sequence finished.
struct SimRig
{
    ManualClock clock;
    VirtualHidBackend hid{&clock};
    VirtualKeyboard* keyboard;
    QTemporaryDir dir;
    ModuleGenKeymapping keys;
    std::unique_ptr<DialogDeviceConnect> conn;

    explicit SimRig(bool wireless = false)
        : keyboard(wireless ? hid.addWirelessKeyboard() : hid.addWiredKeyboard())
    {
        // Inline HID calls: virtual time alone decides what happens when.
        conn = std::make_unique<DialogDeviceConnect>(&hid, &clock, keys, dir.filePath("device.ini"),
                                                     std::make_unique<InlineHidExecutor>());
        // As the hub does: the keyboard's profile presses its layer button, and plug notices
        // reach the connection.
        QObject::connect(conn.get(), &DialogDeviceConnect::onUpdataLayer, conn.get(),
                         [this](int layer) { conn->DoSetProfile(quint8(layer)); });
        QObject::connect(&hid, &HidBackend::devicePluggined, conn.get(),
                         &DialogDeviceConnect::onDevicePluggined);
        if (wireless)
            conn->DoConnectDevice(keyboard->vendorId(), keyboard->productId(), true, "0AF7",
                                  QString::fromLatin1(keyboard->commandPath()));
        else
            conn->connectStep(); // the console's Connect button, on device.ini's defaults
        QVERIFY2(settle(), "first read sequence");
    }
    bool settle()
    {
        return clock.advanceUntil([this] { return conn->isIdle(); }, 60000, 5);
    }
    bool readAgain()
    {
        conn->DoReadAll();
        return settle();
    }
    const NativeKeyboardModel& fw() const { return keyboard->model(); }

    // The cache holds what the firmware holds: the key layers of its profile, the Fn layer and
    // every magnetism table but the live sensor readings.
    void compareCacheWithFirmware() const
    {
        for (int layer = 0; layer < DeviceCache::kKeyLayers; ++layer)
            QCOMPARE(conn->GetKeyMatrix(layer), fw().keyMap(fw().profile(), layer));
        QCOMPARE(conn->GetFnMatrix(0), fw().fnMap());
        for (const MagnetTables::Table& t : MagnetTables::kTables)
            if (t.number != MagnetTables::kSensorTable)
                QCOMPARE(conn->GetMagnetTable(MagnetTables::indexOf(t.number)),
                         fw().magnetTable(t.number));
    }
};

// The frames of one command the firmware received since it last forgot them, each cut to n
// bytes.
inline QList<QByteArray> framesOf(const NativeKeyboardModel& firmware, quint8 command, int n = 12)
{
    QList<QByteArray> out;
    for (const QByteArray& frame : firmware.receivedFrames())
        if (quint8(frame.at(0)) == command) out.append(frame.left(n));
    return out;
}
