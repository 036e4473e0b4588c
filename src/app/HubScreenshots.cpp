// Runs the hub over the virtual devices in English and saves two pictures of its window: the
// cards once every device is listed (cards.png) and the page of a native keyboard once it has
// been read (shell.png). orbe_hub_screenshots <folder>; not installed, for the README.

#include "AppStartup.h"
#include "Clock.h"
#include "DeviceEnumInfo.h"
#include "DeviceRegistry.h"
#include "DialogDeviceConnect.h"
#include "FrameDeviceShow.h"
#include "MainWindow.h"
#include "Platform.h"
#include "VirtualHidBackend.h"

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QMouseEvent>
#include <QStandardPaths>
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

    enum class Step { Cards, Settle, Shell, Done } step = Step::Cards;
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
            result = save(window, out + QStringLiteral("/shell.png")) ? 0 : 1;
            step = Step::Done;
            app.exit(result);
            return;
        }
        case Step::Done:
            return;
        }
    });
    poll.start(kPollMs);
    return app.exec();
}
