// The window's watches: a second start, the empty card page, Escape, the return flag, the lock,
// and the periodic scan. A watch runs only while it has something to watch, at its own
// interval, so that an idle hub sleeps between scans instead of waking ninety times a second.

#include "MainWindow.h"

#include "AppLog.h"
#include "Clock.h"
#include "DeviceRegistry.h"
#include "OrbeDeviceEnum.h"
#include "Platform.h"
#include "SingleInstance.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>

namespace {

constexpr int kEscapeWatchMs = 30;
constexpr int kEmptyListWatchMs = 100;
constexpr int kRaiseWatchMs = 200;
constexpr int kFirstScanMs = 500;
constexpr int kCardPageScanMs = 30000;
constexpr int kOtherPageScanMs = 60000;
constexpr int kLockWatchMs = 5000;
constexpr qint64 kLockedIdleMs = 301000;

// Starts a stopped timer or stops a running one; a running timer keeps its phase.
void keepRunning(ClockTimer& timer, int intervalMs, bool run)
{
    if (run && !timer.isActive())
        timer.start(intervalMs);
    else if (!run && timer.isActive())
        timer.stop();
}

} // namespace

void MainWindow::startTimers()
{
    auto watch = [this](void (MainWindow::*work)()) {
        return clock->createTimer([this, work] { (this->*work)(); }, false);
    };
    escapeTimer = watch(&MainWindow::watchEscape);
    // Armed while something may ask for the way back (armReturnWatch); it stops itself.
    returnTimer = watch(&MainWindow::watchReturn);
    if (hasReturnToWatch()) armReturnWatch();
    emptyListTimer = watch(&MainWindow::watchEmptyList);
    // A second start may come at any time, and the lock may fall at any time.
    raiseTimer->start(kRaiseWatchMs);
    lockTimer = watch(&MainWindow::watchLock);
    lockTimer->start(kLockWatchMs);
    scanTimer = clock->createTimer([this] { scanTick(); }, true);
    scanTimer->start(kFirstScanMs);
    updateWatches();
}

void MainWindow::updateWatches()
{
    if (!escapeTimer) return; // still in the constructor
    // Escape leads back to the cards: watched while away from them.
    keepRunning(*escapeTimer, kEscapeWatchMs, ui.stackedWidget->currentIndex() != CardPage);

    // The start-up picture shows until the first card comes, and again after the scan button
    // emptied the page.
    const bool empty = ui.cardLayout->isEmpty();
    keepRunning(*emptyListTimer, kEmptyListWatchMs,
                empty || empty != cardsWereEmpty || ui.stackedWidget->isHidden() != empty);
}

void MainWindow::watchRaiseRequest()
{
    if (!instanceGuard->takeRaiseRequest()) return;
    qCDebug(lcApp) << "a second start asks this hub to come forward";
    showNormal();
    raise();
    activateWindow();
    setFocus();
}

void MainWindow::scanTick()
{
    enumThread->requestScan();
    scanTimer->start(ui.stackedWidget->currentIndex() == CardPage ? kCardPageScanMs
                                                                  : kOtherPageScanMs);
}

void MainWindow::watchEmptyList()
{
    const bool empty = ui.cardLayout->isEmpty();
    if (empty != cardsWereEmpty || ui.stackedWidget->isHidden() != empty) {
        cardsWereEmpty = empty;
        ui.stackedWidget->setHidden(empty);
        ui.labelLogo->setHidden(empty);
        update();
    }
    updateWatches();
}

void MainWindow::watchEscape()
{
    if (platform.keyState(Platform::KeyEscape) >= 0 || keyTesting) return;
    qCDebug(lcApp) << "OrbeReturn 0";
    askReturn();
    setPage(CardPage);
}

void MainWindow::watchLock()
{
    if (platform.isSessionLocked() && platform.millisecondsSinceInput() >= kLockedIdleMs)
        askReturn();
}
