// Time of the key page's two refreshes over the virtual keyboard: every one of the 128 keys is
// looked up by name on every keyboard that exists (the key page's and those of the other
// pages), so the time grows with the number of keyboards. Prints milliseconds per refresh.
//   orbe_keys_bench [REPEATS]

#include "DialogDeviceConnect.h"
#include "FrameKeySetting.h"
#include "KeyPositions.h"
#include "ManualClock.h"
#include "ModuleGenKeymapping.h"
#include "ModuleKeyboard.h"
#include "ModuleMacroManager.h"
#include "VirtualHidBackend.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextStream>
#include <memory>
#include <vector>

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int repeats = std::max(1, app.arguments().value(1, QStringLiteral("50")).toInt());

    ManualClock clock;
    VirtualHidBackend hid(&clock);
    hid.addWiredKeyboard();
    QTemporaryDir dir;
    ModuleGenKeymapping keys;
    DialogDeviceConnect link(&hid, &clock, keys, dir.filePath("device.ini"),
                             std::make_unique<InlineHidExecutor>());
    QObject::connect(&link, &DialogDeviceConnect::onUpdataLayer, &link,
                     [&](int layer) { link.DoSetProfile(quint8(layer)); });
    link.connectStep();
    clock.advanceUntil([&] { return link.isIdle(); }, 60000, 5);
    // A binding on every key with a name, so that each refresh draws them all.
    for (int position = 0; position < 128; ++position) {
        const quint8 entry[4] = {0x03, 0x00, 0xCD, 0x00};
        link.DoSetKey(CodeOfPosition(quint8(position)), entry, 0, 1);
    }
    clock.advanceUntil([&] { return link.isIdle(); }, 600000, 5);

    ModuleMacroManager macros(dir.path());
    FrameKeySetting page(&link, keys, macros, &clock);
    std::vector<std::unique_ptr<ModuleKeyboard>> others;
    QTextStream out(stdout);
    out << "key page refresh, " << repeats << " runs each (virtual wired keyboard, 128 bindings)\n";
    for (int keyboards : {1, 3, 6}) {
        while (int(ModuleKeyboard::instances().size()) < keyboards)
            others.push_back(std::make_unique<ModuleKeyboard>(&link, &clock));
        for (auto [name, refresh] : {std::pair{"custom", &FrameKeySetting::RefreshCustomLayer},
                                     std::pair{"Fn    ", &FrameKeySetting::RefreshFnLayer}}) {
            QElapsedTimer timer;
            timer.start();
            for (int i = 0; i < repeats; ++i)
                (page.*refresh)();
            out << QStringLiteral("%1 keyboard(s), %2 layer: %3 ms per refresh\n")
                       .arg(keyboards)
                       .arg(QLatin1String(name))
                       .arg(double(timer.nsecsElapsed()) / 1e6 / repeats, 0, 'f', 2);
        }
    }
    return 0;
}
