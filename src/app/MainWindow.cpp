#include "MainWindow.h"

#include "AppLog.h"
#include "AppStartup.h"
#include "BatteryPoller.h"
#include "Clock.h"
#include "DeviceEnumInfo.h"
#include "DeviceRegistry.h"
#include "DialogDeviceConnect.h"
#include "FrameDeviceHolder.h"
#include "FrameDeviceShow.h"
#include "FrameSystemInfo.h"
#include "HidBackend.h"
#include "HidExecutor.h"
#include "InstallLayout.h"
#include "LightWorkStore.h"
#include "LoopbackCapture.h"
#include "ModuleLangMenu.h"
#include "ModuleMacroManager.h"
#include "OrbeDeviceBase.h"
#include "OrbeDeviceEnum.h"
#include "Platform.h"
#include "ScanDebounce.h"
#include "SiblingHost.h"
#include "SingleInstance.h"

#include <QAction>
#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QSystemTrayIcon>
#include <QVBoxLayout>
#include <array>

namespace {

const char* const kWindowStyle = "QMainWindow{ background-color: rgba(255, 255, 255, 1); border: "
                                 "1px solid skyblue; border-radius: 20px; }";
// The settings dialog's mask.
const char* const kSystemInfoMaskStyle =
    "QDialog { background-color: rgba(220, 220, 220, 0.96); border: none; border-radius: 20px; }";
constexpr QSize kLanguageMenuSize(110, 280);
constexpr int kLanguageMenuShift = 10;
constexpr int kCardSpacing = 20;
constexpr double kArrowOpacity = 0.6;

constexpr int kSavedLanguageDelayMs = 10;
constexpr int kShowFromTrayFromMs = 50;
constexpr int kShowFromTrayUntilMs = 1500;

// What the window writes at start so that nothing left from an earlier run pulls it back or
// hands a stale device to a sibling driver.
struct SharedValue
{
    const char* key;
    QVariant value;
};
const std::array<SharedValue, 10> kStartValues{{
    {"OrbeReturn", 0},
    {"TarnwickReturn", 0},
    {"OrbeWnd", 0u},
    {"iotManagerInitialized", false},
    {"ShowWindowControlButtons", false},
    {"PageLoaded", false},
    {"DeviceId", 0},
    {"DevicePath", QString()},
    {"VendorDevicePath", QString()},
    {"ByDeviceUuid", QString()},
}};

QString instanceKey(bool tarnwickBuild)
{
    const QString key =
        QLatin1String(tarnwickBuild ? SingleInstance::kTarnwickKey : SingleInstance::kOrbeKey);
    // Tests run windows in parallel processes: each gets a segment of its own.
    if (QStandardPaths::isTestModeEnabled())
        return key + QStringLiteral("-test-%1").arg(QCoreApplication::applicationPid());
    return key;
}

} // namespace

MainWindow::MainWindow(std::unique_ptr<HidBackend> backend, Platform& system, Clock* clk,
                       const QString& dir, QWidget* parent)
    : QMainWindow(parent), platform(system), clock(clk ? clk : QtClock::shared()),
      appDir(OrbeDeviceBase::rootDir(dir)), hid(std::move(backend)),
      registry(std::make_unique<DeviceRegistry>(hid.get(), clock, appDir)),
      poller(std::make_unique<BatteryPoller>(hid.get(), clock)),
      // Given a folder (tests, the screenshots), the macros live in it; otherwise where the
      // install layout keeps the user's files.
      macroStore(std::make_unique<ModuleMacroManager>(dir.isEmpty() ? QString() : appDir))
{
    // A manual clock steps virtual time on this thread: the HID calls then run inline too.
    std::unique_ptr<HidExecutor> io;
    if (clk) io = std::make_unique<InlineHidExecutor>();
    // device.ini: beside the folder the window was given, or where the installed program keeps
    // its settings.
    const QString deviceIni = dir.isEmpty()
                                  ? InstallLayout().settingsFile(QStringLiteral("device.ini"))
                                  : appDir + QStringLiteral("/config/device.ini");
    link = std::make_unique<DialogDeviceConnect>(hid.get(), clock, keys, deviceIni, std::move(io));
    // What the machine plays, for the music effect: captured from now until the end, whether
    // or not the effect is on. Virtual time stays off the machine's sound and sends silence.
    if (!clk) {
        capture = createLoopbackCapture();
        capture->start();
        link->setAudioCapture(capture.get());
    }
    registry->setTarnwickBuild(tarnwickBuild);
    registry->setWindowShown(false); // until shown: a hidden window doesn't scan

    // 1-3: the form, then the single-instance guard and its watch.
    ui.setupUi(this, link.get(), keys, *macroStore,
               LightWorkStore::folderIn(dir.isEmpty() ? QString() : appDir), clock);
    claimSingleInstance();

    // 4-6: the frameless window and the card page.
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint | Qt::MSWindowsFixedSizeDialogHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setWindowTitle(QLatin1String(tarnwickBuild ? "Tarnwick Dirver Hub" : "Orbe Dirver Hub"));
    setStyleSheet(QLatin1String(kWindowStyle));
    renameImagesWithBlanks();
    ui.stackedWidget->hide();
    ui.labelPrev->hide();
    ui.labelNext->hide();
    ui.cardLayout->setSpacing(kCardSpacing);
    ui.scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    ui.scrollArea->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    // 7: language menu and settings.
    langMenu = new ModuleLangMenu(this);
    connect(langMenu, &ModuleLangMenu::onLangChanged, this, &MainWindow::applyLanguage);
    connect(ui.pushButtonLang, &QPushButton::clicked, this, &MainWindow::showLanguageMenu);
    connect(ui.pushButtonSet, &QPushButton::clicked, this, &MainWindow::openSystemInfo);

    // 8-9: the empty-list watch (started with the others) and the floating arrows.
    createFloats();

    // 10-12: discovery thread, filters, arrow hiding.
    enumThread = std::make_unique<OrbeDeviceEnum>();
    enumThread->setOwner(registry.get());
    for (QObject* watched : std::initializer_list<QObject*>{
             ui.labelPrev, ui.labelNext, floatPrev, floatNext, floatReturn, ui.labelLogo,
             ui.scrollArea, ui.scrollArea->viewport()})
        watched->installEventFilter(this);
    arrowHideTimer = clock->createTimer(
        [this] {
            arrowHideTimer->stop();
            floatPrev->hide();
            floatNext->hide();
        },
        true);

    // 13: hot-plug from the HID backend (the system's notices, or the virtual devices' plugs),
    // debounced into one scan.
    debounce = new ScanDebounce(
        clock, [this] { enumThread->requestScan(); }, this);
    connect(hid.get(), &HidBackend::devicePluggined, debounce, &ScanDebounce::onDevicePluggined);
    connect(hid.get(), &HidBackend::devicePluggined, link.get(),
            &DialogDeviceConnect::onDevicePluggined);

    // 14: the sibling drivers.
    createSiblingHost(dir);

    // 15-16: tray, counts, the first page.
    createTray();
    updateCounts();
    setPage(CardPage);
    connect(ui.frameHold, &FrameDeviceHolder::onReturn, this, [this] { setPage(CardPage); });

    // 17: the saved language replaces the system's a moment later.
    clock->singleShot(kSavedLanguageDelayMs, this, [this] { selectSavedLanguage(); });

    // 18: the connection marks the device busy while it reads it whole.
    DialogDeviceConnect* link = connection();
    connect(link, &DialogDeviceConnect::onUpdataLayer, ui.frameHold, &FrameDeviceHolder::setLayer);
    connect(link, &DialogDeviceConnect::onReadAll, this,
            [this] { registry->setScanSuspended(true); });
    connect(link, &DialogDeviceConnect::onReadDone, this,
            [this] { registry->setScanSuspended(false); });
    connect(link, &DialogDeviceConnect::onKeyTesting, this,
            [this](bool testing) { keyTesting = testing; });
    // The pass raises the return flag itself when the open device is lost; the watch that
    // takes it runs from here on.
    connect(
        registry.get(), &DeviceRegistry::currentDeviceLost, this,
        [this] { armReturnWatch(); },
        Qt::QueuedConnection);

    // 19-22.
    resetSharedValues();
    connect(ui.pushButtonScan, &QPushButton::clicked, this, &MainWindow::rescan);
    connect(ui.pushButtonMin, &QPushButton::clicked, this, [this] {
        showMinimized();
        lower();
    });
    connect(ui.pushButtonExit, &QPushButton::clicked, this, &QWidget::close);
    startTimers();
    connect(registry.get(), &DeviceRegistry::oEnumDeiceDone, this, &MainWindow::refreshCards,
            Qt::QueuedConnection);
    setWindowMode(true);
}

MainWindow::~MainWindow()
{
    // The thread before the registry; the pages and the connection before the backend.
    tearingDown = true;
    enumThread.reset();
    disconnect(hid.get(), nullptr, this, nullptr);
    siblings->releaseEmbedded();
    delete takeCentralWidget();
    poller.reset();
    registry.reset();
}

void MainWindow::claimSingleInstance()
{
    instanceGuard = std::make_unique<SingleInstance>(instanceKey(tarnwickBuild));
    if (!instanceGuard->claim()) {
        hide();
        std::exit(0);
    }
    raiseTimer = clock->createTimer([this] { watchRaiseRequest(); }, false);
}

void MainWindow::renameImagesWithBlanks()
{
    QDir dir(imagesDir());
    for (const QString& name : dir.entryList(QDir::Files)) {
        if (!name.contains(u' ')) continue;
        const QString renamed = QString(name).replace(u' ', u'-');
        if (!dir.rename(name, renamed)) qCDebug(lcApp) << "could not rename" << name;
    }
}

void MainWindow::createFloats()
{
    auto makeFloat = [this](const char* name) {
        auto* dialog = new QDialog(this, Qt::Tool | Qt::FramelessWindowHint);
        dialog->setObjectName(QLatin1String(name));
        dialog->setAttribute(Qt::WA_TranslucentBackground);
        dialog->setCursor(Qt::PointingHandCursor);
        return dialog;
    };
    floatPrev = makeFloat("floatPrev");
    floatNext = makeFloat("floatNext");
    floatReturn = makeFloat("floatReturn");
    floatPrev->setWindowOpacity(kArrowOpacity);
    floatNext->setWindowOpacity(kArrowOpacity);
}

void MainWindow::createTray()
{
    actionShow = new QAction(this);
    actionHide = new QAction(this);
    actionQuit = new QAction(this);
    connect(actionQuit, &QAction::triggered, qApp, &QCoreApplication::quit);
    connect(actionShow, &QAction::triggered, this, [this] {
        showNormal();
        raise();
        platform.keepOnTopForAWhile(this, winId(), kShowFromTrayFromMs, kShowFromTrayUntilMs);
    });
    connect(actionHide, &QAction::triggered, this, [this] {
        hide();
        trayHidden = true;
    });
    if (!QSystemTrayIcon::isSystemTrayAvailable()) {
        qCDebug(lcApp) << "no system tray here";
        return;
    }
    trayIcon = new QSystemTrayIcon(QIcon(QStringLiteral(":/images/logo.png")), this);
    auto* menu = new QMenu(this);
    menu->addAction(actionShow);
    menu->addAction(actionHide);
    menu->addSeparator();
    menu->addAction(actionQuit);
    trayIcon->setContextMenu(menu);
    connect(trayIcon, &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason == QSystemTrayIcon::Context) return;
                if (!isHidden() && !isMinimized())
                    hide();
                else
                    showNormal();
            });
    trayIcon->setVisible(true);
}

void MainWindow::resetSharedValues()
{
    for (const SharedValue& value : kStartValues)
        platform.setUserValue(QLatin1String(value.key), value.value);
}

void MainWindow::setPage(int index)
{
    ui.stackedWidget->setCurrentIndex(index);
    // Away from the cards something may ask for the way back.
    if (index != CardPage) armReturnWatch();
    updateWatches();
}

void MainWindow::rescan()
{
    setWindowMode(true);
    floatReturn->hide();
    setPage(CardPage);
    registry->clear();
    devices.clear();
    while (QLayoutItem* item = ui.cardLayout->takeAt(0)) {
        if (QWidget* card = item->widget()) card->hide();
        delete item;
    }
    updateWatches();
    enumThread->requestScan();
}

FrameDeviceShow* MainWindow::acquireCard(int index)
{
    if (index < 0 || index >= FrameDeviceShow::kPoolSize) return nullptr;
    while (cards.size() <= index) {
        auto* card = new FrameDeviceShow({.clock = clock, .poller = poller.get(), .appDir = appDir},
                                         ui.scrollAreaWidgetContents);
        card->setScrollArea(ui.scrollArea);
        connect(card, &FrameDeviceShow::onReport, ui.frameHold, &FrameDeviceHolder::showBattery);
        connect(card, &FrameDeviceShow::onClicked, this, &MainWindow::openDevice);
        cards.append(card);
    }
    return cards.at(index);
}

void MainWindow::refreshCards(const QList<DeviceEnumInfo>& snapshot)
{
    devices = snapshot;
    int index = 0;
    for (const DeviceEnumInfo& record : std::as_const(devices)) {
        if (!record.online) continue;
        FrameDeviceShow* card = acquireCard(index);
        if (!card) {
            qCDebug(lcApp) << "no card left for" << record.displayName;
            break;
        }
        ++index;
        card->setDevice(record);
        card->show();
        if (ui.cardLayout->indexOf(card) < 0) ui.cardLayout->addWidget(card);
    }
    updateCounts();
    updateWatches();
}

void MainWindow::updateCounts()
{
    const int online = int(std::count_if(devices.cbegin(), devices.cend(),
                                         [](const DeviceEnumInfo& d) { return d.online; }));
    for (int i = online; i < cards.size(); ++i)
        cards.at(i)->hide();
    ui.labelInfo0->setText(tr("我的设备") + QStringLiteral("(%1)").arg(online));
    actionShow->setText(tr("显示窗口"));
    actionHide->setText(tr("隐藏窗口"));
    actionQuit->setText(tr("退出程序"));
    if (trayIcon)
        trayIcon->setToolTip(
            QLatin1String(tarnwickBuild ? "Tarnwick Driver" : "ORBE Cloud Driver"));
    ui.pushButtonLang->setText(language.languageText());
}

void MainWindow::setWindowMode(bool narrow)
{
    const QSize size(narrow ? kNarrowWidth : kWideWidth, kHeight);
    QPoint origin;
    if (const QList<QScreen*> screens = QGuiApplication::screens(); !screens.isEmpty()) {
        const QRect screen = screens.first()->geometry();
        origin = QPoint(qMax(0, screen.x() + (screen.width() - size.width()) / 2),
                        qMax(0, screen.y() + (screen.height() - size.height()) / 2));
    }
    setFixedSize(size);
    move(origin);
}

void MainWindow::applyLanguage(int index, const QString& text)
{
    language.setTranslators(appTranslator, qtBaseTranslator, qtTranslator);
    language.setHostedFamily(hostedFamily);
    language.apply(index, text);
    ui.pushButtonLang->setText(language.languageText());
}

void MainWindow::selectSavedLanguage()
{
    // No default on purpose: a first run comes up in language 0 whatever the system's locale.
    langMenu->selectLanguage(platform.userValue(QStringLiteral("lastlang")).toInt());
}

void MainWindow::showLanguageMenu()
{
    if (!langMenu->isHidden()) return;
    const QWidget* frame = ui.pushButtonLang;
    langMenu->move(frame->mapToGlobal(QPoint(kLanguageMenuShift, frame->height())));
    langMenu->resize(kLanguageMenuSize);
    langMenu->show();
}

void MainWindow::openSystemInfo()
{
    langMenu->hide();
    QDialog mask(this);
    mask.setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    mask.setAttribute(Qt::WA_TranslucentBackground);
    mask.setStyleSheet(QLatin1String(kSystemInfoMaskStyle));
    auto* layout = new QVBoxLayout(&mask);
    // Made for this opening alone, without a parent of its own.
    auto* info = new FrameSystemInfo(platform);
    layout->addWidget(info, 0, Qt::AlignCenter);
    connect(info, &FrameSystemInfo::decided, &mask,
            [&mask](bool accepted) { accepted ? mask.accept() : mask.reject(); });
    mask.setGeometry(geometry());
    mask.exec();
    layout->removeWidget(info);
    info->setParent(nullptr);
    info->deleteLater();
}

void MainWindow::updateScanGate()
{
    registry->setWindowShown(isVisible() && !isMinimized());
}

QString MainWindow::imagesDir() const
{
    return appDir + QStringLiteral("/images/");
}
