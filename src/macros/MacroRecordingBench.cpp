// Wall time the macro page takes per recorded event as the macro grows (each event adds a pair
// of squares, lays the grid out and packs the macro for its size), then the time of one edit
// that saves the file whole. Virtual time for the gaps, the real page and store on a temporary
// folder, offscreen.
// orbe_macro_bench [EVENTS] (default 400); bench/macro-recording runs it.

#include "FrameMacro.h"
#include "ManualClock.h"
#include "ModuleMacroManager.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextStream>

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int events = qMax(50, app.arguments().value(1).toInt() ?: 400);
    constexpr int kBucket = 50;

    QTemporaryDir dir;
    ModuleMacroManager store(dir.path());
    ManualClock clock;
    FrameMacro page(store, nullptr, &clock);
    page.resize(1124, 740);
    page.show();
    page.findChild<QPushButton*>(QStringLiteral("pushButtonRecord"))->click();

    QTextStream out(stdout);
    out << "events   squares after   mean ms per event\n";
    QElapsedTimer timer;
    timer.start();
    for (int i = 1; i <= events; ++i) {
        QKeyEvent key(i % 2 ? QEvent::KeyPress : QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier);
        QApplication::sendEvent(&page, &key);
        clock.advance(30);
        if (i % kBucket == 0) {
            out << QStringLiteral("%1-%2").arg(i - kBucket + 1, 4).arg(i, -4) << "   "
                << QStringLiteral("%1").arg(FrameMacro::squares().size(), 13) << "   "
                << QString::number(double(timer.nsecsElapsed()) / 1e6 / kBucket, 'f', 2) << '\n';
            timer.restart();
        }
    }
    timer.restart();
    page.findChild<QPushButton*>(QStringLiteral("pushButtonRecord"))->click();
    out << "stop and save: " << QString::number(double(timer.nsecsElapsed()) / 1e6, 'f', 2)
        << " ms\n";
    timer.restart();
    page.findChild<QPushButton*>(QStringLiteral("pushButtonSetDelay"))->click();
    out << "fixed delay for all, saved: "
        << QString::number(double(timer.nsecsElapsed()) / 1e6, 'f', 2) << " ms\n";
    out << "macro file: " << QFileInfo(store.eventPath(0)).size() << " bytes, packed "
        << ModuleMacroManager::PackMacro(page.current()).size() << " bytes\n";
    return 0;
}
