// The window's events: the floating arrows and return button, dragging, the logo's hidden
// console, keys, painting and the close question.

#include "MainWindow.h"

#include "AppLog.h"
#include "Clock.h"
#include "DialogDeviceConsole.h"
#include "FrameDeviceHolder.h"
#include "ModuleLangMenu.h"
#include "OrbeDeviceEnum.h"
#include "Platform.h"
#include "SiblingHost.h"

#include <QCloseEvent>
#include <QCursor>
#include <QDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QSystemTrayIcon>
#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr QRect kLogoRect{30, 25, 136, 40};
constexpr int kDragStripHeight = 80;
constexpr int kLogoClickWindowMs = 300;
constexpr int kArrowSize = 48;
constexpr QSize kReturnSize{80, 32};
constexpr int kMinCardsForArrows = 3;
constexpr int kActivateTopFromMs = 200;
constexpr int kActivateTopUntilMs = 600;
constexpr int kLeaveCheckMs = 100;
constexpr int kArrowHideMs = 50;
constexpr int kWindowModeDelayMs = 100;
constexpr int kSplashTextHeight = 100;
constexpr int kSplashFontPoints = 22;

int clampedRound(double value)
{
    const double rounded = std::round(value); // half away from zero
    return int(
        qBound<double>(std::numeric_limits<int>::min(), rounded, std::numeric_limits<int>::max()));
}

} // namespace

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (tearingDown) return false;
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseButtonRelease) {
        if (watched == ui.labelPrev || watched == floatPrev) {
            langMenu->hide();
            scrollCards(-1);
        } else if (watched == ui.labelNext || watched == floatNext) {
            langMenu->hide();
            scrollCards(1);
        } else if (watched == floatReturn) {
            floatReturn->hide();
            setPage(CardPage);
            siblings->hideForReturnButton();
            clock->singleShot(kWindowModeDelayMs, this, [this] { setWindowMode(true); });
        }
        ui.scrollArea->update();
    }
    if (type == QEvent::Paint) {
        if (watched == floatPrev || watched == floatNext || watched == floatReturn) {
            paintFloat(static_cast<QWidget*>(watched));
            return true;
        }
        return QMainWindow::eventFilter(watched, event);
    }

    placeFloats();
    const bool arrow = watched == floatPrev || watched == floatNext;
    if (type == QEvent::Enter && (watched == ui.scrollArea->viewport() || arrow)) {
        arrowHideTimer->stop();
        langMenu->hide();
        if (ui.cardLayout->count() >= kMinCardsForArrows) {
            floatPrev->show();
            floatNext->show();
        }
    } else if (type == QEvent::Leave && watched == ui.scrollArea->viewport()) {
        arrowHideTimer->start(kArrowHideMs);
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::scrollCards(int direction)
{
    QScrollBar* bar = ui.scrollArea->horizontalScrollBar();
    bar->setValue(bar->value() + direction * ui.scrollArea->width());
}

void MainWindow::placeFloats()
{
    const int y = height() / 2 + 50;
    floatPrev->setGeometry(QRect(mapToGlobal(QPoint(20, y)), QSize(kArrowSize, kArrowSize)));
    floatNext->setGeometry(
        QRect(mapToGlobal(QPoint(width() - 70, y)), QSize(kArrowSize, kArrowSize)));
    floatReturn->setGeometry(
        QRect(mapToGlobal(QPoint(15, ui.stackedWidget->y() + 5)), kReturnSize));
}

void MainWindow::paintFloat(QWidget* target)
{
    QPainter painter(target);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (target == floatReturn) {
        painter.setPen(QColor::fromRgba(0x64FFFFFF));
        painter.setBrush(QColor::fromRgba(0x64646464));
        painter.drawRoundedRect(target->rect().adjusted(1, 1, -1, -1), 16, 16);
        painter.drawPixmap(target->rect().adjusted(24, 2, -24, -2),
                           QPixmap(QStringLiteral(":/images/btn-return.png")));
        return;
    }
    const QString image =
        QLatin1String(target == floatPrev ? ":/images/a-left.png" : ":/images/a-right.png");
    painter.drawPixmap(target->rect(), QPixmap(image));
}

bool MainWindow::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::NonClientAreaMouseMove:
        show();
        setFocus();
        activateWindow();
        raise();
        qCDebug(lcApp) << "pointer over the frame";
        event->accept();
        return true;
    case QEvent::Leave:
        clock->singleShot(kLeaveCheckMs, this, [this] {
            if (!rect().contains(mapFromGlobal(QCursor::pos()))) pointerInside = false;
        });
        if (!rect().contains(mapFromGlobal(QCursor::pos()))) langMenu->hide();
        break;
    case QEvent::Enter:
        pointerInside = true;
        break;
    case QEvent::WindowDeactivate:
        if (!rect().contains(mapFromGlobal(QCursor::pos()))) pointerInside = false;
        break;
    case QEvent::WindowActivate:
        pointerInside = true;
        if (!closing)
            platform.keepOnTopForAWhile(this, winId(), kActivateTopFromMs, kActivateTopUntilMs);
        break;
    case QEvent::LanguageChange:
        ui.retranslateUi(this);
        updateCounts();
        break;
    case QEvent::Show:
        raise();
        activateWindow();
        if (trayHidden) askReturn();
        trayHidden = false;
        updateScanGate();
        break;
    case QEvent::Hide:
    case QEvent::WindowStateChange:
        updateScanGate();
        break;
    default:
        break;
    }
    return QMainWindow::event(event);
}

void MainWindow::mousePressEvent(QMouseEvent* event)
{
    langMenu->hide();
    if (event->button() == Qt::LeftButton) {
        const QPoint at = event->position().toPoint();
        if (kLogoRect.contains(at)) countLogoClick();
        if (at.y() < kDragStripHeight) {
            dragging = true;
            dragOffset = event->globalPosition() - QPointF(pos());
        }
    }
    QMainWindow::mousePressEvent(event);
}

void MainWindow::countLogoClick()
{
    ++logoClicks;
    if (!logoClickTimer) logoClickTimer = clock->createTimer([this] { logoClicks = 0; }, true);
    logoClickTimer->start(kLogoClickWindowMs);
    if (logoClicks < 2 || platform.keyState(Platform::KeyControl) >= 0 ||
        platform.keyState(Platform::KeyD) >= 0)
        return;
    if (!engineeringConsole)
        engineeringConsole = new DialogDeviceConsole(connection(), platform, this);
    engineeringConsole->show();
    engineeringConsole->raise();
}

void MainWindow::mouseMoveEvent(QMouseEvent* event)
{
    if (dragging && (event->buttons() & Qt::LeftButton)) {
        const QPointF target = event->globalPosition() - dragOffset;
        move(clampedRound(target.x()), clampedRound(target.y()));
        placeFloats();
    }
    QMainWindow::mouseMoveEvent(event);
}

void MainWindow::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) dragging = false;
    QMainWindow::mouseReleaseEvent(event);
}

void MainWindow::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        langMenu->hide();
        scrollCards(-1);
        return;
    case Qt::Key_Right:
    case Qt::Key_Down:
        langMenu->hide();
        scrollCards(1);
        return;
    default:
        QMainWindow::keyPressEvent(event);
    }
}

void MainWindow::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QPainterPath outline;
    outline.addRoundedRect(QRectF(rect()), kCornerRadius, kCornerRadius);
    painter.setClipPath(outline);
    if (ui.stackedWidget->isHidden()) {
        floatReturn->hide();
        const QPixmap splash(imagesDir() + QStringLiteral("MainPicture.png"));
        if (splash.isNull())
            painter.fillRect(rect(), QColor(0x6329B6));
        else
            painter.drawPixmap(rect(), splash);
        QFont font = painter.font();
        font.setBold(true);
        font.setPointSize(kSplashFontPoints);
        painter.setFont(font);
        painter.setPen(Qt::white);
        painter.drawText(QRect(0, height() - kSplashTextHeight, width(), kSplashTextHeight),
                         Qt::AlignCenter, tr("正在搜索设备") + QStringLiteral("..."));
    } else {
        painter.fillRect(rect(), Qt::white);
        painter.drawPixmap(kLogoRect, QPixmap(QStringLiteral(":/images/OrbeFlag.png")));
    }
    painter.setClipping(false);
    painter.setPen(QPen(QColor(0x87CEEB), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCornerRadius,
                            kCornerRadius);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    langMenu->hide();
    closing = true;
    const auto answer = QMessageBox::question(this, tr("提示"), tr("确定要退出 ORBE 驱动程序？"),
                                              QMessageBox::Yes | QMessageBox::No);
    if (answer != QMessageBox::Yes) {
        closing = false;
        event->ignore();
        return;
    }
    siblings->endAll();
    enumThread->stop();
    floatReturn->hide();
    if (trayIcon) trayIcon->hide();
    siblings->postCloseToAll();
    QCoreApplication::exit(0);
    event->accept();
}
