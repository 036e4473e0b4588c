#pragma once

// A connection on the scripted backend in virtual time, for the protocol tests. Its HID calls
// run inline, so that virtual time alone decides what happens when.

#include "ConsoleModel.h"
#include "DialogDeviceConnect.h"
#include "FakeHidBackend.h"
#include "MagnetTables.h"
#include "ManualClock.h"
#include "ModuleGenKeymapping.h"

#include <QTemporaryDir>
#include <memory>

struct ConnectionRig
{
    ManualClock clock;
    FakeHidBackend hid{&clock};
    QTemporaryDir dir;
    ModuleGenKeymapping keys;
    std::unique_ptr<DialogDeviceConnect> conn = std::make_unique<DialogDeviceConnect>(
        &hid, &clock, keys, iniPath(), std::make_unique<InlineHidExecutor>());

    QString iniPath() const { return dir.filePath("config/device.ini"); }
    // Connects to a wired keyboard; the first frames go out as the clock moves on.
    void connectWired()
    {
        hid.addWiredKeyboard();
        conn->DoConnectDevice(0x3151, 0x502F, false, "0AF7", "path");
    }
    // The hub presses the layer button that the keyboard reports.
    void followLayer()
    {
        QObject::connect(conn.get(), &DialogDeviceConnect::onUpdataLayer, conn.get(),
                         [this](int layer) { conn->DoSetProfile(quint8(layer)); });
    }
};
