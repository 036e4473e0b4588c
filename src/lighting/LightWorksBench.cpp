// What a growing works library costs on the light page: the file's size per work (each keeps a
// PNG of the keyboard), the time to open a page on it, and the time of one save, which grabs
// the keyboard and rewrites the whole file. Prints the figures; nothing is asserted.
//   orbe_lighting_bench [REPEATS]

#include "DialogColorPicker.h"
#include "DialogDeviceConnect.h"
#include "FrameLight.h"
#include "KeyboardButton.h"
#include "ManualClock.h"
#include "ModuleGenKeymapping.h"
#include "ModuleKeyboard.h"
#include "VirtualHidBackend.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

double millisecondsSince(const QElapsedTimer& timer, int runs)
{
    return double(timer.nsecsElapsed()) / 1e6 / runs;
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int repeats = std::max(1, app.arguments().value(1, QStringLiteral("5")).toInt());

    ManualClock clock;
    VirtualHidBackend hid(&clock);
    hid.addWiredKeyboard();
    QTemporaryDir dir;
    ModuleGenKeymapping keys;
    DialogDeviceConnect link(&hid, &clock, keys, dir.filePath("device.ini"),
                             std::make_unique<InlineHidExecutor>());
    const QString folder = dir.filePath(QStringLiteral("work"));

    QTextStream out(stdout);
    out << "light works library, " << repeats << " runs each (offscreen)\n";
    // One page paints every key in a colour of its own and saves, so that each preview is a
    // full painting; other pages are opened on the file it writes.
    FrameLight painter(&link, folder, &clock);
    painter.show();
    clock.advance(100); // the keys take their style
    int hue = 0;
    for (KeyboardButton* key : painter.keyboard()->buttons()) {
        emit painter.picker()->onPickupColor(QColor::fromHsv(hue, 200, 255));
        key->click();
        hue = (hue + 7) % 360;
    }
    auto* save = painter.findChild<QAbstractButton*>(QStringLiteral("pushButtonSave"));
    for (int works : {10, 50, 200}) {
        while (painter.worksModel()->rowCount() < works - 1)
            save->click();
        QElapsedTimer timer;
        timer.start();
        save->click(); // the works-th work
        const double saveMs = millisecondsSince(timer, 1);
        const qint64 bytes = QFileInfo(folder + QStringLiteral("/ledwork.json")).size();

        timer.restart();
        for (int i = 0; i < repeats; ++i)
            FrameLight opened(&link, folder, &clock);
        const double openMs = millisecondsSince(timer, repeats);
        out << QStringLiteral("%1 works: file %2 KiB (%3 KiB a work), save %4 ms, open %5 ms\n")
                   .arg(works)
                   .arg(bytes / 1024)
                   .arg(double(bytes) / 1024 / works, 0, 'f', 1)
                   .arg(saveMs, 0, 'f', 1)
                   .arg(openMs, 0, 'f', 1);
    }
    return 0;
}
