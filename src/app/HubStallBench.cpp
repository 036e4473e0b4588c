// Runs the hub over the virtual devices with the stall watch on, and measures how long the
// window's thread goes without events while the connection works: connecting to the wireless
// keyboard and reading it whole, then a burst of key and magnetism writes. Before that the hub
// sits idle for a while: what the watch sees then is the machine's own share (other programs
// taking the processor). The click and the device page's first show (its layout) are measured
// on their own: that is the window's work, whatever the connection does. Prints the longest pause
// of each phase, with the thread's busy time, beside the longest single HID call of the run
// (bench/gui-stall). orbe_hub_stall_bench [BURST] [SPACING_MS]   (default 200 writes, all at once)

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

#include <QApplication>
#include <QCursor>
#include <QElapsedTimer>
#include <QStandardPaths>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>

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

    enum class Step { Cards, Idle, Page, Read, Burst, Done } step = Step::Cards;
    QElapsedTimer phase;
    phase.start();
    double readStall = 0;
    double readBusy = 0;
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
        case Step::Burst: {
            if (writer.isActive() || !link.isIdle()) return;
            const double burstStall = watchdog.longestStallMs();
            report(QStringLiteral("burst of %1 key and magnetism writes").arg(burst));
            const TimedHidBackend::Longest longest = hid->longest();
            out << QString::asprintf("%-38s %6.1f ms (%s)\n", "longest single HID call", longest.ms,
                                     qPrintable(longest.call));
            const auto byThread = hid->longestByThread();
            for (auto it = byThread.cbegin(); it != byThread.cend(); ++it)
                out << QString::asprintf("  on the %-30s %6.1f ms (%s)\n",
                                         qPrintable(it.key() + QStringLiteral(" thread")),
                                         it.value().ms, qPrintable(it.value().call));
            out << QString::asprintf("gui-stall: %.1f ms\n", std::max(readStall, burstStall));
            out << QString::asprintf("gui-busy: %.1f ms\n",
                                     std::max(readBusy, watchdog.longestBusyMs()));
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
