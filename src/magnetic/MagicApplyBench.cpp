// What an apply on the magnetic page costs, over the virtual keyboard, wired and wireless: the
// time until the connection has worked off what the click sent (five single-value frames per
// key, each with an immediate kick and a read step of its own; virtual time, so the figure is
// the protocol's own pacing) and the processor time the page spends on the click. Also the
// processor time of entering each page with captions, which looks up all 128 keys by name. Prints
// the figures; asserts nothing.
//   orbe_magnetic_bench [REPEATS]

#include "DialogDeviceConnect.h"
#include "FrameMagic.h"
#include "HidExecutor.h"
#include "KeyboardButton.h"
#include "ManualClock.h"
#include "ModuleGenKeymapping.h"
#include "ModuleKeyboard.h"
#include "VirtualHidBackend.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

struct Keyboard
{
    ManualClock clock;
    VirtualHidBackend hid{&clock};
    QTemporaryDir dir;
    ModuleGenKeymapping keys;
    std::unique_ptr<DialogDeviceConnect> link;

    explicit Keyboard(bool wireless)
    {
        VirtualKeyboard* board = wireless ? hid.addWirelessKeyboard() : hid.addWiredKeyboard();
        // HID calls inline: the virtual clock alone decides when things happen.
        link = std::make_unique<DialogDeviceConnect>(&hid, &clock, keys, dir.filePath("device.ini"),
                                                     std::make_unique<InlineHidExecutor>());
        QObject::connect(link.get(), &DialogDeviceConnect::onUpdataLayer, link.get(),
                         [this](int layer) { link->DoSetProfile(quint8(layer)); });
        link->DoConnectDevice(board->vendorId(), board->productId(), wireless, "0AF7",
                              QString::fromLatin1(board->commandPath()));
        settle();
    }
    qint64 settle()
    {
        const qint64 start = clock.elapsedMs();
        clock.advanceUntil([this] { return link->isIdle(); }, 3600000, 5);
        return clock.elapsedMs() - start;
    }
};

QAbstractButton* button(FrameMagic& page, const char* name)
{
    return page.findChild<QAbstractButton*>(QLatin1String(name));
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int repeats = std::max(1, app.arguments().value(1, QStringLiteral("20")).toInt());
    QTextStream out(stdout);

    for (bool wireless : {false, true}) {
        Keyboard keyboard(wireless);
        FrameMagic page(keyboard.link.get(), &keyboard.clock);
        const QList<KeyboardButton*> keys = page.keyboard()->buttons();
        out << (wireless ? "wireless" : "wired") << " keyboard\n";
        for (int count : {1, 10, 82}) {
            page.keyboard()->selectAll(false);
            for (int i = 0, chosen = 0; i < keys.size() && chosen < count; ++i) {
                if (!keys.at(i)->isVisibleTo(page.keyboard())) continue; // the knob's halves
                keys.at(i)->setChecked(true);
                ++chosen;
            }
            QElapsedTimer timer;
            timer.start();
            button(page, "pushButtonSetRT")->click();
            const double clickMs = double(timer.nsecsElapsed()) / 1e6;
            const qint64 received = keyboard.settle();
            out << QStringLiteral(
                       "  apply to %1 key(s): %2 frames, connection idle after %3 ms; the click "
                       "%4 ms\n")
                       .arg(count, 2)
                       .arg(count * 5)
                       .arg(received)
                       .arg(clickMs, 0, 'f', 2);
        }
        for (auto [id, name] :
             {std::pair{0, "travel    "}, std::pair{1, "dead zones"}, std::pair{2, "switches  "}}) {
            QAbstractButton* entry =
                button(page, qPrintable(QStringLiteral("pushButtonSet%1").arg(id)));
            QElapsedTimer timer;
            timer.start();
            for (int i = 0; i < repeats; ++i)
                entry->click();
            out << QStringLiteral("  entering %1: %2 ms per entry (%3 runs)\n")
                       .arg(QLatin1String(name))
                       .arg(double(timer.nsecsElapsed()) / 1e6 / repeats, 0, 'f', 2)
                       .arg(repeats);
        }
    }
    return 0;
}
