// The window's side of a click on a card: a native keyboard opens in the device page, any other
// goes to its sibling driver, whose window the hub shows inside itself or in its place; and
// the way back to the cards when a sibling or the hub asks for it.

#include "MainWindow.h"

#include "AppLog.h"
#include "AppStartup.h"
#include "Clock.h"
#include "DeviceEnumInfo.h"
#include "DeviceRegistry.h"
#include "DialogDeviceConnect.h"
#include "FrameDeviceHolder.h"
#include "ModuleLangMenu.h"
#include "SiblingHost.h"

#include <QCoreApplication>
#include <QDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <array>

namespace {

// The native keyboards of the cloud family; any other member goes to its sibling driver.
constexpr std::array<quint64, 2> kNativeIds{0x0AF7, 0x0EC3};
const char* const kNativeNameMark = "7090";

constexpr int kReturnWatchMs = 100;
constexpr int kShowSiblingDelayMs = 100;
constexpr int kTopLevelSettleMs = 1000;
constexpr int kReturnButtonDelayMs = 2000;
constexpr int kShowAfterReturnMs = 200;
constexpr int kEmbeddedCorner = 32;
constexpr quint32 kRedrawFlags = Platform::RedrawUpdateNow | Platform::RedrawEraseNow; // 0x300

const char* const kStatusStyle = "QLabel#labelSiblingStatus { color: #5A5F6B; font-size: 18px; }";

bool isNative(const DeviceEnumInfo& device)
{
    return std::find(kNativeIds.begin(), kNativeIds.end(), device.deviceId) != kNativeIds.end() ||
           device.displayName.contains(QLatin1String(kNativeNameMark));
}

// Where a window of that size stands centred on the first screen, in native pixels; an edge off
// the screen goes to 0.
QPoint centredOnFirstScreen(const QSize& size)
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    if (screens.isEmpty()) return {};
    const QSize screen = screens.first()->size() * screens.first()->devicePixelRatio();
    auto place = [](int room, int extent) {
        const int at = (room - extent) / 2;
        return at < 0 || at > room ? 0 : at;
    };
    return {place(screen.width(), size.width()), place(screen.height(), size.height())};
}

} // namespace

void MainWindow::createSiblingHost(const QString& dir)
{
    const QString root =
        AppStartup::siblingRoot(dir.isEmpty() ? QCoreApplication::applicationDirPath() : appDir);
    siblings = std::make_unique<SiblingHost>(platform, clock, root, tarnwickBuild, [this] {
        return Platform::WindowId(ui.frameEmb->winId());
    });
    siblings->hubVisible = [this] { return isVisible(); };
    // A window that turns up while its device's page waits for it is shown then.
    connect(siblings.get(), &SiblingHost::windowFound, this, [this](int slot) {
        if (slot == hostedFamily && labelSiblingStatus->isVisible()) showSiblingWindow();
    });

    // Under the embedded window, and what the page says while there is none.
    auto* layout = new QVBoxLayout(ui.frameEmb);
    labelSiblingStatus = new QLabel(ui.frameEmb);
    labelSiblingStatus->setObjectName(QStringLiteral("labelSiblingStatus"));
    labelSiblingStatus->setStyleSheet(QLatin1String(kStatusStyle));
    labelSiblingStatus->setAlignment(Qt::AlignCenter);
    labelSiblingStatus->setWordWrap(true);
    labelSiblingStatus->hide();
    layout->addWidget(labelSiblingStatus);

    siblings->start();
}

void MainWindow::openDevice(const QString& devicePath, const QString& deviceImage)
{
    const auto found = std::find_if(devices.cbegin(), devices.cend(),
                                    [&](const auto& d) { return d.devicePath == devicePath; });
    if (devicePath.isEmpty() || found == devices.cend()) return;
    const DeviceEnumInfo device = *found;
    hostedFamily = device.family;
    hostedDeviceId = device.deviceId;
    hostedDevicePath = device.devicePath;
    langMenu->hide();
    language.setHostedFamily(hostedFamily);
    siblings->hideAll();
    siblings->handOver(device, language.localeTag());

    if (device.family == DeviceEnumInfo::CloudFamily && isNative(device)) {
        connection()->DoConnectDevice(device.vendorId, device.productId,
                                      device.connectionType == DeviceEnumInfo::Bluetooth,
                                      device.vendorPath, device.devicePath);
        setPage(DevicePage);
        ui.frameHold->setDevice(device, deviceImage, device.displayName);
        // Losing this device brings the cards back.
        currentDevicePath = device.devicePath;
        registry->setCurrentDevice(device.devicePath);
        return;
    }
    qCDebug(lcApp) << device.displayName << "goes to its sibling driver (family" << device.family
                   << ")";
    if (device.family == DeviceEnumInfo::CloudFamily) {
        siblings->handOverToRy(device);
        setWindowMode(false);
    }
    clock->singleShot(kShowSiblingDelayMs, this, [this] { showSiblingWindow(); });
}

void MainWindow::showSiblingWindow()
{
    const int slot = hostedFamily;
    if (slot < 0) return;
    const Platform::WindowId window = siblings->window(slot);
    if (!window) {
        const auto record = std::find_if(devices.cbegin(), devices.cend(), [this](const auto& d) {
            return d.devicePath == hostedDevicePath;
        });
        const QString name = record == devices.cend() ? QString() : record->displayName;
        if (siblings->isInstalled(slot)) {
            showSiblingStatus(tr("正在启动“%1”的驱动程序...").arg(name));
        } else {
            qCWarning(lcApp) << "the driver for" << name
                             << "is not installed:" << siblings->programPath(slot);
            showSiblingStatus(
                tr("“%1”的驱动程序没有安装。请重新安装 ORBE 驱动程序后再试。").arg(name));
        }
        return;
    }
    labelSiblingStatus->hide();
    currentDevicePath = hostedDevicePath;
    registry->setCurrentDevice(hostedDevicePath);
    const bool embedded = siblings->showsEmbedded(slot);
    if (embedded)
        showEmbeddedSibling(window);
    else
        showTopLevelSibling(window);
    pointerInside = true;
    clock->singleShot(kReturnButtonDelayMs, this, [this, embedded] {
        const bool show = embedded && ui.stackedWidget->currentIndex() == SiblingPage;
        placeFloats();
        floatReturn->setVisible(show);
    });
}

void MainWindow::showTopLevelSibling(Platform::WindowId window)
{
    const QRect frame = platform.windowRect(window);
    const QRect centred(centredOnFirstScreen(frame.size()), frame.size());
    hide();
    siblingOnTop = true;
    armReturnWatch();
    // A return value left from before must not pull the hub back while the sibling comes up.
    returnArmed = false;
    platform.showWindow(window);
    platform.bringWindowToTop(window);
    platform.moveWindow(window, centred, true);
    clock->singleShot(kTopLevelSettleMs, this, [this, window, frame, centred] {
        platform.setUserValue(QStringLiteral("OrbeReturn"), 0);
        platform.setUserValue(QStringLiteral("TarnwickReturn"), 0);
        returnArmed = true;
        platform.bringWindowToTop(window);
        platform.showWindow(window);
        platform.setForegroundWindow(window);
        platform.redrawWindow(window, kRedrawFlags);
        registry->setHostedWindow(true);
        qCDebug(lcApp) << "sibling window" << frame << "shown at" << centred;
    });
}

void MainWindow::showEmbeddedSibling(Platform::WindowId window)
{
    setPage(SiblingPage);
    ui.frameEmb->show();
    const qreal ratio = ui.frameEmb->devicePixelRatioF();
    const QSize size(int(ui.frameEmb->width() * ratio + 1), int(ui.frameEmb->height() * ratio + 1));
    platform.setWindowPos(window, Platform::ZOrder::Bottom, QRect(QPoint(0, 0), size),
                          Platform::ShowWindowFlag);
    // Only the bottom corners are round: the top joins the hub's title.
    platform.setBottomRoundedRegion(window, size, kEmbeddedCorner);
}

void MainWindow::showSiblingStatus(const QString& text)
{
    setPage(SiblingPage);
    labelSiblingStatus->setText(text);
    labelSiblingStatus->show();
    placeFloats();
    floatReturn->show();
}

void MainWindow::askReturn()
{
    armReturnWatch(); // first: it drops what was raised before
    platform.setUserValue(QStringLiteral("OrbeReturn"), 1);
}

void MainWindow::armReturnWatch()
{
    if (!returnTimer || returnTimer->isActive()) return;
    dropStaleReturn();
    returnTimer->start(kReturnWatchMs);
}

void MainWindow::dropStaleReturn()
{
    // Raised while nothing of this window watched: there is nothing to return from, and taking
    // it now would throw the user out of the page they are opening.
    for (const char* key : {"OrbeReturn", "TarnwickReturn"}) {
        if (platform.userValue(QLatin1String(key)).toInt() == 0) continue;
        qCDebug(lcApp) << "dropping" << key << "raised while nothing watched";
        platform.setUserValue(QLatin1String(key), 0);
    }
}

bool MainWindow::isWatchingReturn() const
{
    return returnTimer && returnTimer->isActive();
}

bool MainWindow::hasReturnToWatch() const
{
    return ui.stackedWidget->currentIndex() != CardPage || siblingOnTop;
}

void MainWindow::watchReturn()
{
    const bool asked = platform.userValue(QStringLiteral("OrbeReturn")).toInt() != 0 ||
                       platform.userValue(QStringLiteral("TarnwickReturn")).toInt() != 0;
    if (!asked || !returnArmed) {
        if (!asked && !hasReturnToWatch()) returnTimer->stop();
        return;
    }
    qCDebug(lcApp) << "Action OrbeReturn";
    platform.setUserValue(QStringLiteral("OrbeReturn"), 0);
    platform.setUserValue(QStringLiteral("TarnwickReturn"), 0);
    returnToCards();
    clock->singleShot(kShowAfterReturnMs, this, [this] {
        show();
        raise();
    });
}

void MainWindow::returnToCards()
{
    setPage(CardPage);
    floatReturn->hide();
    labelSiblingStatus->hide();
    siblings->hideAll();
    hostedFamily = -1;
    hostedDeviceId = 0;
    hostedDevicePath.clear();
    currentDevicePath.clear();
    siblingOnTop = false;
    registry->setCurrentDevice(QString());
    registry->setHostedWindow(false);
}
