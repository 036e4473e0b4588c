// A stand-in for a sibling driver, for the hosting tests and the screenshots: a window with the
// title the hub looks for (taken from the name it was started under), the device it was handed
// as the per-user values tell it, and a button that asks the hub to come back ("OrbeReturn" 1).
// With ORBE_STANDIN_PRESS_MS set it presses that button itself once it is shown with a device
// newly handed to it, after that many milliseconds. ORBE_STANDIN_TEST_MODE puts its values where a
// test's are.

#include "SiblingHost.h"

#include <QApplication>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

namespace {

QString titleFor(const QString& programName)
{
    for (int slot = 0; slot < int(SiblingHost::kSiblings.size()); ++slot) {
        const QString program = SiblingHost::nativeName(
            QFileInfo(QLatin1String(SiblingHost::kSiblings[slot].program)).fileName());
        if (program == programName) return QLatin1String(SiblingHost::kSiblings[slot].title);
    }
    return programName;
}

QSettings values()
{
    return QSettings(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Orbe"));
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    if (qEnvironmentVariableIsSet("ORBE_STANDIN_TEST_MODE"))
        QStandardPaths::setTestModeEnabled(true);

    QWidget window;
    window.setWindowTitle(titleFor(QFileInfo(QString::fromLocal8Bit(argv[0])).fileName()));
    window.resize(900, 600);
    window.setStyleSheet(QStringLiteral(
        "QWidget { background: #1E2233; color: #E8EAF2; font-size: 16px; }"
        "QLabel#title { font-size: 28px; font-weight: bold; color: white; }"
        "QPushButton { background: #6329B6; color: white; border: none; border-radius: 8px;"
        " padding: 10px 24px; font-size: 16px; }"));
    auto* layout = new QVBoxLayout(&window);
    layout->setSpacing(24);
    layout->setContentsMargins(48, 48, 48, 48);
    auto* title = new QLabel(window.windowTitle(), &window);
    title->setObjectName(QStringLiteral("title"));
    auto* device = new QLabel(&window);
    device->setWordWrap(true);
    auto* back = new QPushButton(QStringLiteral("OrbeReturn"), &window);
    layout->addWidget(title);
    layout->addWidget(device, 1, Qt::AlignTop);
    layout->addWidget(back, 0, Qt::AlignLeft);

    QObject::connect(back, &QPushButton::clicked, [] {
        QSettings settings = values();
        settings.setValue(QStringLiteral("OrbeReturn"), 1);
        settings.sync();
    });

    // Like a real driver it acts on a change of the device it is handed, not on a value that
    // was there before it started.
    const int pressMs = qEnvironmentVariableIntValue("ORBE_STANDIN_PRESS_MS");
    QString lastPath;
    bool polledOnce = false;
    bool handedOver = false;
    bool pressArmed = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        QSettings settings = values();
        const QString path = settings.value(QStringLiteral("DevicePath")).toString();
        if (path != lastPath && !path.isEmpty() && polledOnce) handedOver = true;
        lastPath = path;
        polledOnce = true;
        // What each family's driver reads of the hand-over.
        QStringList handed;
        for (const char* key : {"DeviceId", "DevicePath", "VendorDevicePath", "OrbeDeviceIndex",
                                "ByDeviceUuid", "ByLocale", "JmDevicePath", "JmLocale"}) {
            const QString value = settings.value(QLatin1String(key)).toString();
            if (!value.isEmpty() && value != QLatin1String("0"))
                handed << QStringLiteral("%1: %2").arg(QLatin1String(key), value);
        }
        device->setText(handed.isEmpty()
                            ? QStringLiteral("No device handed over yet.")
                            : QStringLiteral("Handed over by the hub:\n\n") + handed.join(u'\n'));
        const bool shown = window.windowHandle() && window.windowHandle()->isExposed();
        if (pressMs > 0 && !pressArmed && shown && handedOver) {
            pressArmed = true;
            QTimer::singleShot(pressMs, back, &QPushButton::click);
        }
    });
    poll.start(100);
    window.show();
    return app.exec();
}
