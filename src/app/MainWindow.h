#pragma once

#include "DialogDeviceConsole.h"
#include "LanguageSwitch.h"
#include "MainWindowForm.h"
#include "ModuleGenKeymapping.h"
#include "Platform.h"

#include <QMainWindow>
#include <QPointer>
#include <QString>
#include <memory>

class BatteryPoller;
class Clock;
class ClockTimer;
class DeviceRegistry;
class AudioCapture;
class DialogDeviceConnect;
class FrameDeviceShow;

class HidBackend;
class ModuleMacroManager;
class ModuleLangMenu;
class ModuleMacroManager;
class OrbeDeviceEnum;
class QAction;
class QLabel;
class QDialog;
class QSystemTrayIcon;
class QTranslator;
class ScanDebounce;
class SiblingHost;
class SingleInstance;
struct DeviceEnumInfo;

// The hub's frameless window: the cards of the devices found, the page of a native keyboard,
// the tray icon, and the timers that scan, watch for a second start and bring the user back to
// the cards. It owns the discovery (registry and thread), the key tables, the macro store and
// the one connection, and passes them down to the device page shell.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    static constexpr int kNarrowWidth = 1280;
    static constexpr int kWideWidth = 1520;
    static constexpr int kHeight = 900;
    static constexpr int kCornerRadius = 20;

    // The stacked pages.
    enum Page { CardPage = 0, SiblingPage = 1, DevicePage = 2 };

    // hid is also the hot-plug source. platform must outlive the window. clock null means the
    // real one; tests pass a manual clock, and then the connection runs its HID calls inline
    // rather than on its I/O thread, so that virtual time stays deterministic. appDir holds
    // "config/" and "images/"; empty means the folder the program ships them in. A second hub
    // leaves in here with exit code 0, after asking the first to come forward.
    MainWindow(std::unique_ptr<HidBackend> hid, Platform& platform, Clock* clock = nullptr,
               const QString& appDir = QString(), QWidget* parent = nullptr);
    ~MainWindow() override;

    // Set by main(); the window reloads them when the language changes, it doesn't own them.
    QTranslator* appTranslator = nullptr;
    QTranslator* qtBaseTranslator = nullptr;
    QTranslator* qtTranslator = nullptr;

    DialogDeviceConnect* connection() const { return link.get(); }
    ModuleLangMenu* languageMenu() const { return langMenu; }
    DeviceRegistry* deviceRegistry() const { return registry.get(); }
    // The user's macros: in appDir's "macro" when an appDir was given, else in the folder of the
    // user's files (InstallLayout::userFilesDir).
    ModuleMacroManager& macros() const { return *macroStore; }
    BatteryPoller* batteryPoller() const { return poller.get(); }
    FrameDeviceHolder* deviceHolder() const { return ui.frameHold; }
    // The engineering console, null until it was opened.
    DialogDeviceConsole* console() const { return engineeringConsole; }

    // Carries out a choice of the language menu (index into kLanguages, the menu's text).
    void applyLanguage(int index, const QString& text);
    // The start-up choice: the saved "lastlang", language 0 when there is none.
    void selectSavedLanguage();

    // One card per online device of the snapshot, in order of first sighting; run with every
    // discovery pass's snapshot. The window keeps the snapshot as its list of devices.
    void refreshCards(const QList<DeviceEnumInfo>& snapshot);
    // The devices as the last snapshot had them.
    const QList<DeviceEnumInfo>& deviceList() const { return devices; }
    // The pooled card of a position; null when it wasn't made yet.
    FrameDeviceShow* card(int index) const { return cards.value(index); }
    // The device count in the title, the tray's texts and the language button.
    void updateCounts();
    // 1280 by 900 when narrow, else 1520 by 900, centred on the first screen.
    void setWindowMode(bool narrow);
    // A click on a card: a native keyboard opens in the device page, any other is handed to
    // its sibling driver, whose window is shown 100 ms later.
    void openDevice(const QString& devicePath, const QString& deviceImage);
    // Shows the window of the sibling the device was handed to, inside the hub or as its own;
    // without one, says in the page why it waits.
    void showSiblingWindow();
    // Leaves whatever page is shown for the cards when the return flag is up. Runs while
    // something may ask for it and stops itself after.
    void watchReturn();
    bool isWatchingReturn() const;
    SiblingHost* siblingHost() const { return siblings.get(); }
    // Starts the watches that have something to watch and stops the others; run whenever the
    // page, the cards or the return flag change.
    void updateWatches();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void claimSingleInstance();
    void renameImagesWithBlanks();
    void createFloats();
    void createTray();
    void startTimers();
    void resetSharedValues();
    void showLanguageMenu();
    void openSystemInfo();
    void watchRaiseRequest();
    void watchEmptyList();
    void watchEscape();
    void watchLock();
    void scanTick();
    void rescan();
    void scrollCards(int direction);
    void placeFloats();
    void paintFloat(QWidget* target);
    void countLogoClick();
    void returnToCards();
    void dropStaleReturn();
    void createSiblingHost(const QString& dir);
    void showTopLevelSibling(Platform::WindowId window);
    void showEmbeddedSibling(Platform::WindowId window);
    void showSiblingStatus(const QString& text);
    // Writes "OrbeReturn" 1 and makes sure the return watch sees it.
    void askReturn();
    void armReturnWatch();
    bool hasReturnToWatch() const;
    void setPage(int index);
    void updateScanGate();
    // The card of a position, made on first use; null past the pool.
    FrameDeviceShow* acquireCard(int index);
    QString imagesDir() const;

    Platform& platform;
    Clock* clock;
    QString appDir;
    // Declared so that they go in reverse: the thread before the registry it runs; the
    // connection, the poller and the registry before the HID backend they use. The pages, which
    // use the connection, the key tables and the macro store, go first of all.
    std::unique_ptr<HidBackend> hid;
    std::unique_ptr<DeviceRegistry> registry;
    std::unique_ptr<BatteryPoller> poller;
    ModuleGenKeymapping keys;
    std::unique_ptr<ModuleMacroManager> macroStore;
    std::unique_ptr<AudioCapture> capture; // read by the connection's music rounds
    std::unique_ptr<DialogDeviceConnect> link;
    std::unique_ptr<SingleInstance> instanceGuard;
    std::unique_ptr<SiblingHost> siblings;

    MainWindowForm ui;
    ModuleLangMenu* langMenu = nullptr;
    LanguageSwitch language{platform};
    std::unique_ptr<OrbeDeviceEnum> enumThread;
    bool tarnwickBuild = false; // the second brand; nothing sets it
    bool trayHidden = false;
    QPointF dragOffset;
    bool dragging = false;
    bool closing = false;
    bool pointerInside = true; // kept, never read
    bool keyTesting = false;
    QSystemTrayIcon* trayIcon = nullptr;
    std::unique_ptr<ClockTimer> arrowHideTimer;
    QDialog* floatPrev = nullptr;
    QDialog* floatNext = nullptr;
    QDialog* floatReturn = nullptr;
    int hostedFamily = -1;
    quint64 hostedDeviceId = 0;
    QString hostedDevicePath;
    QString currentDevicePath;
    QList<DeviceEnumInfo> devices;
    QList<FrameDeviceShow*> cards;
    QAction* actionShow = nullptr;
    QAction* actionHide = nullptr;
    QAction* actionQuit = nullptr;
    bool returnArmed = true;
    bool siblingOnTop = false; // a top-level sibling stands in for the hidden hub
    QLabel* labelSiblingStatus = nullptr;
    bool tearingDown = false; // the widgets the filter looks at are going
    bool cardsWereEmpty = true;
    int logoClicks = 0;
    QPointer<DialogDeviceConsole> engineeringConsole;

    ScanDebounce* debounce = nullptr;
    std::unique_ptr<ClockTimer> raiseTimer;
    std::unique_ptr<ClockTimer> emptyListTimer;
    std::unique_ptr<ClockTimer> escapeTimer;
    std::unique_ptr<ClockTimer> returnTimer;
    std::unique_ptr<ClockTimer> scanTimer;
    std::unique_ptr<ClockTimer> lockTimer;
    std::unique_ptr<ClockTimer> logoClickTimer;
};
