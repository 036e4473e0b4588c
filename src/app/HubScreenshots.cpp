// Runs the hub over the virtual devices in English and saves pictures of its window: the cards
// once every device is listed (cards.png), the home page of a native keyboard once it has been
// read (shell.png), its custom colour tab with the colour picker open over it (picker.png).
// orbe_hub_screenshots <folder>; not installed, for the README.

#include "AppStartup.h"
#include "Clock.h"
#include "DeviceEnumInfo.h"
#include "DeviceRegistry.h"
#include "DialogColorPicker.h"
#include "DialogDeviceConnect.h"
#include "FrameDeviceShow.h"
#include "MainWindow.h"
#include "ModuleEfColor.h"
#include "Platform.h"
#include "VirtualHidBackend.h"

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QMouseEvent>
#include <QScreen>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>

namespace {

constexpr int kEnglish = 1;
constexpr int kDevicesInSet = 6;
constexpr int kPollMs = 100;
constexpr int kSettleMs = 3000; // the cards' first battery answers come 2 s after they show
constexpr int kGiveUpMs = 60000;

bool save(QWidget& window, const QString& path)
{
    const bool ok = window.grab().save(path);
    QTextStream(stdout) << (ok ? "wrote " : "could not write ") << path << '\n';
    return ok;
}

void click(QWidget* widget)
{
    const QPointF at(widget->width() / 2.0, widget->height() / 2.0);
    QMouseEvent press(QEvent::MouseButtonPress, at, widget->mapToGlobal(at), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, at, widget->mapToGlobal(at), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &release);
}

// The screen where the window stands, so that the picker's own window is in the picture.
bool saveScreen(QWidget& window, const QString& path)
{
    const QRect area = window.frameGeometry();
    const bool ok =
        window.screen()->grabWindow(0, area.x(), area.y(), area.width(), area.height()).save(path);
    QTextStream(stdout) << (ok ? "wrote " : "could not write ") << path << '\n';
    return ok;
}

} // namespace

int main(int argc, char* argv[])
{
    // Keeps the user's saved language and the running hub's segment out of this.
    QStandardPaths::setTestModeEnabled(true);
    QApplication app(argc, argv);
    app.setStyleSheet(AppStartup::applicationStyleSheet());
    const QString out = app.arguments().value(1, QStringLiteral("."));
    QDir().mkpath(out);

    QTranslator appTranslator, qtBaseTranslator, qtTranslator;
    Platform::instance().setUserValue(QStringLiteral("lastlang"), kEnglish);
    MainWindow window(AppStartup::createHidBackend(true));
    window.appTranslator = &appTranslator;
    window.qtBaseTranslator = &qtBaseTranslator;
    window.qtTranslator = &qtTranslator;
    window.show();
    QCursor::setPos(0, 0); // no card under the pointer: none shows its hover style

    enum class Step { Cards, Settle, Shell, Picker, Done } step = Step::Cards;
    int waited = 0;
    int result = 1;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        waited += kPollMs;
        if (waited > kGiveUpMs) {
            QTextStream(stderr) << "gave up waiting for the hub\n";
            app.exit(1);
            return;
        }
        switch (step) {
        case Step::Cards:
            if (window.deviceRegistry()->onlineCount() < kDevicesInSet) return;
            step = Step::Settle;
            waited = 0;
            return;
        case Step::Settle:
            if (waited < kSettleMs) return;
            if (!save(window, out + QStringLiteral("/cards.png"))) app.exit(1);
            // The native keyboard on Bluetooth, the second card: its page shows the battery.
            click(FrameDeviceShow::acquire(1, nullptr));
            step = Step::Shell;
            return;
        case Step::Shell: {
            DialogDeviceConnect* link = window.connection();
            if (!link->isConnected() || !link->isIdle() || link->GetKeyMatrix(0).isEmpty()) return;
            if (!save(window, out + QStringLiteral("/shell.png"))) app.exit(1);
            // The custom colours of the home page, with the picker opened beside them.
            auto* colours = window.findChild<ModuleEfColor*>(QStringLiteral("frameLEDColor"));
            colours->findChild<QTabWidget*>(QStringLiteral("tabWidget"))->setCurrentIndex(1);
            DialogColorPicker* picker = colours->picker();
            picker->setColor(QColor(0x6F, 0x3C, 0xE0));
            const QPoint at = colours->mapToGlobal(QPoint(colours->width() - 40, 40));
            picker->showAt(at.x(), at.y());
            step = Step::Picker;
            waited = 0;
            return;
        }
        case Step::Picker:
            if (waited < 600) return; // the picker's window is mapped and painted
            result = saveScreen(window, out + QStringLiteral("/picker.png")) ? 0 : 1;
            step = Step::Done;
            app.exit(result);
            return;
        case Step::Done:
            return;
        }
    });
    poll.start(kPollMs);
    return app.exec();
}
