#pragma once

// The device page shell as the hub shows it, over a wired virtual keyboard in virtual time,
// connected and read whole.

#include "DialogDeviceConnect.h"
#include "FrameDeviceHolder.h"
#include "HidExecutor.h"
#include "ManualClock.h"
#include "ModuleGenKeymapping.h"
#include "ModuleMacroManager.h"
#include "VirtualHidBackend.h"

#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

struct ShellRig
{
    ManualClock clock;
    VirtualHidBackend hid{&clock};
    VirtualKeyboard* keyboard = hid.addWiredKeyboard();
    QTemporaryDir dir;
    ModuleMacroManager macros{dir.path()};
    ModuleGenKeymapping keys;
    DialogDeviceConnect link{&hid, &clock, keys, dir.filePath("device.ini"),
                             std::make_unique<InlineHidExecutor>()};
    FrameDeviceHolder holder{&link, keys, macros, dir.filePath("work"), &clock};

    ShellRig()
    {
        // As the main window wires the keyboard's profile to the layer buttons.
        QObject::connect(holder.connection(), &DialogDeviceConnect::onUpdataLayer, &holder,
                         &FrameDeviceHolder::setLayer);
        holder.connection()->DoConnectDevice(keyboard->vendorId(), keyboard->productId(), false,
                                             "0AF7", QString::fromLatin1(keyboard->commandPath()));
        settle();
    }
    bool settle()
    {
        DialogDeviceConnect* link = holder.connection();
        return clock.advanceUntil([link] { return link->isConnected() && link->isIdle(); }, 60000,
                                  5);
    }
    bool pressLayer(int layer)
    {
        QTest::mouseClick(
            holder.findChild<QPushButton*>(QStringLiteral("pushButtonLayer%1").arg(layer)),
            Qt::LeftButton);
        return settle();
    }
};
