#pragma once

// A hub window over virtual devices on a manual clock, for the window tests: the cards, the
// device page and the connection behind it, reached the way a user reaches them.

#include "BatteryPoller.h"
#include "DeviceEnumInfo.h"
#include "DeviceRegistry.h"
#include "DialogDeviceConnect.h"
#include "FakePlatform.h"
#include "FrameDeviceHolder.h"
#include "FrameDeviceShow.h"
#include "MainWindow.h"
#include "ManualClock.h"
#include "VirtualHidBackend.h"

#include <QCoreApplication>
#include <QLabel>
#include <QLayout>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QTest>
#include <QThread>
#include <functional>
#include <memory>

constexpr int kStepMs = 5;

// What every window test program does first: test mode, and the recording platform the
// windows are given.
inline FakePlatform* startWindowTests()
{
    QStandardPaths::setTestModeEnabled(true);
    return &FakePlatform::shared();
}

// A window over virtual devices on a manual clock. The window is never shown, so the discovery
// gate stays shut and the tests put the devices into the registry themselves.
struct Hub
{
    ManualClock clock;
    VirtualHidBackend* backend = nullptr;
    std::unique_ptr<MainWindow> window;

    explicit Hub(const std::function<void(VirtualHidBackend&)>& setup = {})
    {
        auto devices = std::make_unique<VirtualHidBackend>(&clock);
        backend = devices.get();
        if (setup) setup(*devices);
        window = std::make_unique<MainWindow>(std::move(devices), FakePlatform::shared(), &clock,
                                              QStringLiteral(ORBE_BIN_DIR));
    }
    ~Hub()
    {
        // A battery query under way sleeps on this clock: let it finish before the poller waits.
        runUntil([&] { return window->batteryPoller()->pendingCount() == 0; }, 5000);
        window.reset();
    }

    // Virtual time and the events that threads queued, until done() holds.
    bool runUntil(const std::function<bool()>& done, int limitMs)
    {
        for (int t = 0; t <= limitMs; t += kStepMs) {
            QCoreApplication::processEvents();
            if (done()) return true;
            clock.advance(kStepMs);
            // The battery poller's thread waits on this clock: give it real time to see the
            // step, or a loaded machine runs out of virtual time before the thread runs.
            if (window && window->batteryPoller()->pendingCount() > 0) QThread::msleep(1);
        }
        return done();
    }

    // The about page has widgets of the same names: look on the card page.
    QWidget* cardPage() const { return window->findChild<QWidget*>("page00"); }
    DeviceRegistry* registry() const { return window->deviceRegistry(); }
    FrameDeviceHolder* holder() const { return window->deviceHolder(); }
    DialogDeviceConnect* link() const { return window->connection(); }
    int page() const { return window->findChild<QStackedWidget*>("stackedWidget")->currentIndex(); }

    // The names on the cards the page shows, in their order.
    QStringList cardNames() const
    {
        QStringList names;
        auto* layout = cardPage()->findChild<QWidget*>("scrollAreaWidgetContents")->layout();
        for (int i = 0; i < layout->count(); ++i) {
            QWidget* card = layout->itemAt(i)->widget();
            if (card && !card->isHidden())
                names << card->findChild<QLabel*>("labelDeviceName")->text();
        }
        return names;
    }

    void sight(quint64 id, const QString& path, int connection = DeviceEnumInfo::Usb,
               quint16 vid = 0x3151, quint16 pid = 0x502F)
    {
        registry()->addDevice(vid, pid, id, path, path, connection, DeviceEnumInfo::CloudFamily);
    }
    DeviceEnumInfo record(const QString& path) const
    {
        for (const DeviceEnumInfo& r : registry()->records())
            if (r.devicePath == path) return r;
        return {};
    }
    // What a discovery pass hands the window: the registry's records, by value.
    void refresh() { window->refreshCards(registry()->records()); }

    // One wired keyboard of this id, on the first card.
    VirtualKeyboard* showKeyboard(quint32 id = 0x0AF7)
    {
        VirtualKeyboard* keyboard = backend->addWiredKeyboard(id);
        sight(id, QString::fromUtf8(keyboard->commandPath()));
        refresh();
        return keyboard;
    }
    // The same, its card clicked and the keyboard read whole; the frames so far forgotten.
    VirtualKeyboard* openKeyboard()
    {
        VirtualKeyboard* keyboard = showKeyboard();
        clickCard(0);
        if (!readDone()) return nullptr;
        keyboard->model().clearReceivedFrames();
        return keyboard;
    }

    // Clicks the card of a position; readDone() runs until the connection has read the keyboard.
    void clickCard(int index) { QTest::mouseClick(window->card(index), Qt::LeftButton); }
    bool readDone()
    {
        return runUntil([&] { return link()->isConnected() && link()->isIdle(); }, 30000);
    }
};
