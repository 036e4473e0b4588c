// Runs the hub over the virtual devices with the stall watch on, and measures how long the
// window's thread goes without events while the connection works: connecting to the wireless
// keyboard and reading it whole, then a burst of key and magnetism writes, then the wired
// keyboard with the music effect on for 10 s while the cards' battery polls go on. Before that
// the hub sits idle for a while: what the watch sees then is the machine's own share (other
// programs taking the processor). The click and the device page's first show (its layout) are
// measured on their own: that is the window's work, whatever the connection does. Prints the
// longest pause of each phase, with the thread's busy time, beside the longest single HID call
// of the run (bench/gui-stall). orbe_hub_stall_bench [BURST] [SPACING_MS]   (default 200 writes,
// all at once)

#include "AppStartup.h"
#include "Clock.h"
#include "DeviceEnumInfo.h"
#include "DeviceRegistry.h"
#include "DialogDeviceConnect.h"
#include "FrameDeviceShow.h"
#include "MainWindow.h"
#include "Platform.h"
#include "ScriptedInput.h"
#include "StallWatchdog.h"
#include "TimedHidBackend.h"
#include "VirtualHidBackend.h"

#include <QApplication>
#include <QCursor>
#include <QElapsedTimer>
#include <QStandardPaths>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>
#include <algorithm>

namespace {

constexpr int kDevicesInSet = 6;
constexpr int kPollMs = 20;
constexpr int kGiveUpMs = 180000;
constexpr int kIdleMs = 15000;
constexpr int kPageMs = 300;
constexpr int kDefaultBurst = 200;
constexpr quint8 kFirstKeyCode = 0x04; // A, then on through the letters and digits
constexpr int kKeyCodes = 36;
constexpr quint8 kActuationTable = 0x00;
constexpr quint32 kActuationRaw = 300; // 1.5 mm
constexpr int kMusicMs = 10000;
constexpr quint8 kMusicCommand = 0x0D;
constexpr quint64 kNativeIds[] = {0x0AF7, 0x0EC3};

// The card of the native keyboard on the radio link.
FrameDeviceShow* wirelessCard(const MainWindow& window)
{
    for (int i = 0; i < kDevicesInSet; ++i) {
        FrameDeviceShow* card = window.card(i);
        if (card && card->device() && card->device()->connectionType == DeviceEnumInfo::Bluetooth &&
            card->device()->family == DeviceEnumInfo::CloudFamily)
            return card;
    }
    return nullptr;
}

// The card of the native keyboard on the cable.
FrameDeviceShow* wiredCard(const MainWindow& window)
{
    for (int i = 0; i < kDevicesInSet; ++i) {
        FrameDeviceShow* card = window.card(i);
        const DeviceEnumInfo* d = card ? card->device() : nullptr;
        if (d && d->connectionType == DeviceEnumInfo::Usb &&
            d->family == DeviceEnumInfo::CloudFamily &&
            std::find(std::begin(kNativeIds), std::end(kNativeIds), d->deviceId) !=
                std::end(kNativeIds))
            return card;
    }
    return nullptr;
}

// The shown one of the widgets of that name (the home page and the light page both have an
// effect list).
QWidget* shown(const QWidget& window, const QString& name)
{
    for (QWidget* w : window.findChildren<QWidget*>(name))
        if (w->isVisible()) return w;
    return nullptr;
}

// Alternating key entries and actuation travels over the first keys.
void writeBurst(DialogDeviceConnect& link, int count)
{
    for (int i = 0; i < count; ++i) {
        const quint8 code = quint8(kFirstKeyCode + (i / 2) % kKeyCodes);
        if (i % 2 == 0) {
            const quint8 entry[4] = {0x00, 0x00, code, 0x00};
            link.DoSetKey(code, entry, 1, 1);
        } else {
            link.DoSetMagnetism(kActuationTable, code, kActuationRaw + i, 1);
        }
    }
}

} // namespace

int main(int argc, char* argv[])
{
    // Keeps the user's saved values and the running hub's segment out of this.
    QStandardPaths::setTestModeEnabled(true);
    QApplication app(argc, argv);
    app.setStyleSheet(AppStartup::applicationStyleSheet());
    const int burst = app.arguments().value(1, QString::number(kDefaultBurst)).toInt();
    const int spacingMs = app.arguments().value(2, QStringLiteral("0")).toInt();
    QTextStream out(stdout);

    const std::unique_ptr<Platform> platform = Platform::create();
    auto timed = std::make_unique<TimedHidBackend>(AppStartup::createHidBackend(true));
    TimedHidBackend* hid = timed.get();
    MainWindow window(std::move(timed), *platform);
    window.show();
    QCursor::setPos(0, 0);
    DialogDeviceConnect& link = *window.connection();
    StallWatchdog watchdog;

    enum class Step { Cards, Idle, Page, Read, Burst, Wired, WiredRead, Music, MusicOff, Done };
    Step step = Step::Cards;
    QElapsedTimer phase;
    phase.start();
    double readStall = 0;
    double readBusy = 0;
    double burstStall = 0;
    double burstBusy = 0;
    double musicStall = 0;
    int written = 0;
    QTimer poll;
    QTimer writer;
    QObject::connect(&writer, &QTimer::timeout, [&] {
        writeBurst(link, spacingMs > 0 ? 1 : burst);
        written += spacingMs > 0 ? 1 : burst;
        if (written >= burst) writer.stop();
    });
    auto report = [&](const QString& what) {
        out << QString::asprintf("%-38s %6.1f ms longest pause (busy %4.1f ms), %6lld ms in all\n",
                                 qPrintable(what), watchdog.longestStallMs(),
                                 watchdog.longestBusyMs(), phase.elapsed());
        out.flush();
    };
    QObject::connect(&poll, &QTimer::timeout, [&] {
        if (phase.elapsed() > kGiveUpMs) {
            QTextStream(stderr) << "gave up waiting for the hub\n";
            app.exit(1);
            return;
        }
        switch (step) {
        case Step::Cards: {
            FrameDeviceShow* card = wirelessCard(window);
            if (window.deviceRegistry()->onlineCount() < kDevicesInSet || !card) return;
            watchdog.restart();
            phase.restart();
            step = Step::Idle;
            return;
        }
        case Step::Idle:
            if (phase.elapsed() < kIdleMs) return;
            report(QStringLiteral("idle hub (the machine's own share)"));
            watchdog.restart();
            phase.restart();
            ScriptedInput::click(wirelessCard(window));
            step = Step::Page;
            return;
        case Step::Page:
            // The device page shows and is laid out for the first time: the window's own work,
            // apart from the connection's, which goes on meanwhile.
            if (phase.elapsed() < kPageMs) return;
            report(QStringLiteral("click and the device page's first show"));
            watchdog.restart();
            step = Step::Read;
            return;
        case Step::Read:
            if (!link.isConnected() || !link.isIdle() || link.GetKeyMatrix(3).isEmpty()) return;
            readStall = watchdog.longestStallMs();
            readBusy = watchdog.longestBusyMs();
            report(QStringLiteral("connecting and reading (wireless)"));
            watchdog.restart();
            phase.restart();
            writer.start(spacingMs);
            step = Step::Burst;
            return;
        case Step::Burst:
            if (writer.isActive() || !link.isIdle() || !shown(window, "label8")) return;
            burstStall = watchdog.longestStallMs();
            burstBusy = watchdog.longestBusyMs();
            report(QStringLiteral("burst of %1 key and magnetism writes").arg(burst));
            // Back to the cards, as the user's return button does, for the wired keyboard.
            ScriptedInput::click(shown(window, "label8"));
            step = Step::Wired;
            return;
        case Step::Wired:
            if (!wiredCard(window) || !wiredCard(window)->isVisible()) return;
            ScriptedInput::click(wiredCard(window));
            step = Step::WiredRead;
            return;
        case Step::WiredRead:
            if (!link.isConnected() || link.isWirelessConnection() || !link.isIdle() ||
                link.GetKeyMatrix(3).isEmpty() || !shown(window, "pushButtonEffect22"))
                return;
            ScriptedInput::click(shown(window, "pushButtonEffect22"));
            watchdog.restart();
            phase.restart();
            step = Step::Music;
            return;
        case Step::Music:
            if (phase.elapsed() < kMusicMs) return;
            if (!shown(window, "pushButtonEffect1")) return;
            musicStall = watchdog.longestStallMs();
            report(QStringLiteral("music effect on (wired)"));
            ScriptedInput::click(shown(window, "pushButtonEffect1"));
            step = Step::MusicOff;
            return;
        case Step::MusicOff: {
            if (!link.isIdle()) return;
            // The connection is idle: nothing touches the keyboard's model on the I/O thread.
            const auto* virtualHid = dynamic_cast<const VirtualHidBackend*>(&hid->inner());
            int reports = 0;
            if (virtualHid && virtualHid->wiredKeyboard())
                for (const QByteArray& f : virtualHid->wiredKeyboard()->model().receivedFrames())
                    reports += quint8(f.at(0)) == kMusicCommand;
            out << QString::asprintf("%-38s %6d (10 a round, the last one cut)\n",
                                     "music reports the keyboard received", reports);
            const TimedHidBackend::Longest longest = hid->longest();
            out << QString::asprintf("%-38s %6.1f ms (%s)\n", "longest single HID call", longest.ms,
                                     qPrintable(longest.call));
            const auto byThread = hid->longestByThread();
            for (auto it = byThread.cbegin(); it != byThread.cend(); ++it)
                out << QString::asprintf("  on the %-30s %6.1f ms (%s)\n",
                                         qPrintable(it.key() + QStringLiteral(" thread")),
                                         it.value().ms, qPrintable(it.value().call));
            out << QString::asprintf("gui-stall: %.1f ms\n", std::max(readStall, burstStall));
            out << QString::asprintf("gui-busy: %.1f ms\n", std::max(readBusy, burstBusy));
            out << QString::asprintf("gui-stall-music: %.1f ms\n", musicStall);
            out.flush();
            step = Step::Done;
            app.exit(0);
            return;
        }
        case Step::Done:
            return;
        }
    });
    poll.start(kPollMs);
    return app.exec();
}
