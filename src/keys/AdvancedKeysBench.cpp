// What each save of the advanced keys costs, on a wired keyboard and over the 2.4 GHz receiver:
// the frames it sends, the time until the last of them has reached the keyboard (the pump's
// pacing, counted on the virtual clock), and the wall time of the click itself with the page's
// redraw. Prints one line per save and link.
//   orbe_advkeys_bench [REPEATS]

#include "DialogDeviceConnect.h"
#include "FrameKeySetting.h"
#include "KeyboardButton.h"
#include "ManualClock.h"
#include "ModuleGenKeymapping.h"
#include "ModuleKeyboard.h"
#include "ModuleMacroManager.h"
#include "VirtualHidBackend.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextStream>
#include <array>

namespace {

// A key of its own for each save: a key saved with an empty first function shows disabled, and
// takes no more clicks.
struct Save
{
    const char* name;
    int tab;
    const char* button;
    quint8 key;
    quint8 partner; // SnapKey's B
};
constexpr std::array<Save, 4> kSaves{{
    {"DKS", 0, "pushButton_OKDKS", 4, 0},
    {"MT", 1, "pushButton_OKMT", 22, 0},
    {"TGL", 2, "pushButton_OKTGL", 7, 0},
    {"SnapKey", 3, "pushButton_OKSnap", 20, 8},
}};

void click(QWidget& page, const char* name)
{
    page.findChild<QAbstractButton*>(QLatin1String(name))->click();
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int repeats = std::max(1, app.arguments().value(1, QStringLiteral("20")).toInt());
    QTextStream out(stdout);
    out << "advanced key saves, " << repeats << " runs each (virtual keyboard)\n";

    for (bool wireless : {false, true}) {
        ManualClock clock;
        VirtualHidBackend hid(&clock);
        VirtualKeyboard* keyboard = wireless ? hid.addWirelessKeyboard() : hid.addWiredKeyboard();
        QTemporaryDir dir;
        ModuleGenKeymapping keys;
        DialogDeviceConnect link(&hid, &clock, keys, dir.filePath("device.ini"),
                                 std::make_unique<InlineHidExecutor>());
        QObject::connect(&link, &DialogDeviceConnect::onUpdataLayer, &link,
                         [&](int layer) { link.DoSetProfile(quint8(layer)); });
        link.DoConnectDevice(keyboard->vendorId(), keyboard->productId(), wireless, "0AF7",
                             QString::fromLatin1(keyboard->commandPath()));
        const auto settle = [&] {
            return clock.advanceUntil([&] { return link.isConnected() && link.isIdle(); }, 600000,
                                      1);
        };
        settle();
        ModuleMacroManager macros(dir.path());
        FrameKeySetting page(&link, keys, macros, &clock);
        page.show();
        click(page, "pushButtonSet2");
        auto* tabs = page.findChild<QTabWidget*>(QStringLiteral("tabWidgetAdv"));

        for (const Save& save : kSaves) {
            tabs->setCurrentIndex(save.tab);
            page.keyboard()->button(save.key)->click();
            if (save.partner) {
                click(page, "radioButton_Snap2");
                page.keyboard()->button(save.partner)->click();
            }
            qint64 wallNs = 0;
            qint64 virtualMs = 0;
            qsizetype frames = 0;
            for (int i = 0; i < repeats; ++i) {
                keyboard->model().clearReceivedFrames();
                QElapsedTimer wall;
                wall.start();
                click(page, save.button);
                wallNs += wall.nsecsElapsed();
                const qint64 start = clock.elapsedMs();
                settle();
                virtualMs += clock.elapsedMs() - start;
                frames = keyboard->model().receivedFrames().size();
            }
            out << QStringLiteral("%1 %2: %3 frames, %4 ms until the keyboard has them, %5 ms "
                                  "for the click and redraw\n")
                       .arg(wireless ? QStringLiteral("2.4G ") : QStringLiteral("wired"))
                       .arg(QLatin1String(save.name), -7)
                       .arg(frames)
                       .arg(virtualMs / repeats)
                       .arg(double(wallNs) / 1e6 / repeats, 0, 'f', 2);
        }
    }
    return 0;
}
