#include "FrameDeviceShow.h"

#include "BatteryPoller.h"
#include "Clock.h"
#include "DeviceCardTables.h"
#include "DeviceEnumInfo.h"
#include "HubLog.h"
#include "OrbeDeviceBase.h"

#include <QDateTime>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <array>

namespace {

const char* const kNormalStyle = "#FrameDeviceShow{background-color:#F4F4F4; border-radius:32px; "
                                 "border: 1px solid transparent;}";
const char* const kHoverStyle = "#FrameDeviceShow{background-color:#E0E0E0; border-radius:32px; "
                                "border: 1px solid #B0B0B0;}";
const char* const kPowerStyle =
    "QToolTip { background-color: #F0F8FF; color: #333333; font-size: 12px; }";
const char* const kNameStyle = "font-size: 18px; font-weight: 600; color: #1A1A1A;";
constexpr int kBadgeSize = 25;
constexpr int kCardHeight = 330;

QString badge(const char* name)
{
    return QLatin1String(DeviceCardTables::kBadgeDir) + QLatin1String(name);
}

} // namespace

QSize FrameDeviceShow::imageSize(const QSize& picture, int cardWidth)
{
    if (picture.isEmpty()) return {};
    const double available = cardWidth - kImageMargin;
    const double ratio = double(picture.width()) / double(picture.height());
    int width = 0;
    int height = 0;
    if (ratio > 1) {
        width = int(available);
        height = int(available / ratio);
        if (height > kMaxImageHeight) {
            height = kMaxImageHeight;
            width = int(ratio * kMaxImageHeight);
        }
    } else {
        width = int(ratio * kMaxImageHeight);
        height = kMaxImageHeight;
        if (width > available) {
            width = int(available);
            height = int(available / ratio);
        }
    }
    return {width, height};
}

QString FrameDeviceShow::batteryImage(int percent)
{
    return badge(DeviceCardTables::kBatterySteps[DeviceCardTables::batteryIndex(percent)].image);
}

QString FrameDeviceShow::connectionImage(int connectionType)
{
    if (connectionType < 0 || connectionType >= int(DeviceCardTables::kConnectionImages.size()))
        return QString();
    return badge(DeviceCardTables::kConnectionImages[connectionType]);
}

QString FrameDeviceShow::batteryTip(int percent)
{
    return tr("剩余电量") + QStringLiteral(": %1%").arg(percent);
}

Clock* FrameDeviceShow::clock() const
{
    return context.clock ? context.clock : QtClock::shared();
}

QString FrameDeviceShow::imagesDir() const
{
    return OrbeDeviceBase::rootDir(context.appDir) + QStringLiteral("/images/");
}

FrameDeviceShow::FrameDeviceShow(const Context& cardContext, QWidget* parent)
    : QFrame(parent), context(cardContext)
{
    setObjectName(QStringLiteral("FrameDeviceShow"));
    setStyleSheet(QLatin1String(kNormalStyle));
    setFixedSize(kMinCardWidth, kCardHeight);

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->setContentsMargins(20, 24, 20, 24);

    labelDeviceName = new QLabel(this);
    labelDeviceName->setObjectName(QStringLiteral("labelDeviceName"));
    labelDeviceName->setAlignment(Qt::AlignCenter);
    labelDeviceName->setStyleSheet(QLatin1String(kNameStyle));
    layout->addWidget(labelDeviceName);

    labelImage = new QLabel(this);
    labelImage->setObjectName(QStringLiteral("labelImage"));
    labelImage->setCursor(Qt::PointingHandCursor);
    layout->addStretch(1);
    layout->addWidget(labelImage, 0, Qt::AlignCenter);
    layout->addStretch(1);

    auto* badges = new QHBoxLayout;
    badges->setSpacing(12);
    badges->addStretch(1);
    labelPower = new QLabel(this);
    labelPower->setObjectName(QStringLiteral("labelPower"));
    labelType = new QLabel(this);
    labelType->setObjectName(QStringLiteral("labelType"));
    for (QLabel* label : {labelPower, labelType}) {
        label->setFixedSize(kBadgeSize, kBadgeSize);
        label->setScaledContents(true);
        badges->addWidget(label);
    }
    labelPower->setPixmap(QPixmap(batteryImage(100)));
    labelType->setPixmap(QPixmap(connectionImage(DeviceEnumInfo::Usb)));
    badges->addStretch(1);
    layout->addLayout(badges);

    reportTimer = clock()->createTimer([this] { report(); }, false);
}

FrameDeviceShow::~FrameDeviceShow() = default;

void FrameDeviceShow::setDevice(const DeviceEnumInfo& device)
{
    current = device;
    hasDevice = true;
    labelDeviceName->setText(device.displayName);

    QString path = imagesDir() + device.displayName + QStringLiteral(".png");
    if (!QFile::exists(path))
        path =
            imagesDir() + QString(device.displayName).replace(u' ', u'-') + QStringLiteral(".png");
    setImage(path, device.deviceType);

    const bool wireless = device.connectionType != DeviceEnumInfo::Usb;
    labelPower->setVisible(wireless);
    clock()->singleShot(kFirstReportMs, this, [this] { report(); });
    // The 10 s report has nothing to ask of a wired device: its timer sleeps with it.
    if (wireless && !reportTimer->isActive())
        reportTimer->start(kReportPeriodMs);
    else if (!wireless)
        reportTimer->stop();

    const QString type = connectionImage(device.connectionType);
    if (type != typeImg) labelType->setPixmap(QPixmap(type));
    typeImg = type;
}

void FrameDeviceShow::setImage(const QString& path, int deviceType)
{
    if (deviceType == DeviceEnumInfo::Keyboard)
        setFixedWidth(kKeyboardCardWidth);
    else if (deviceType == DeviceEnumInfo::Mouse || deviceType == 2)
        setFixedWidth(kSmallCardWidth);

    // Every pass shows the cards again: a picture already shown is not decoded again, unless
    // its file has been replaced since.
    const QDateTime modified = QFileInfo(path).lastModified();
    if (path == imagePath && deviceType == imageType && modified == imageModified) return;
    imagePath = path;
    imageType = deviceType;
    imageModified = modified;

    deviceImg = path;
    QPixmap picture(path);
    if (picture.isNull()) {
        deviceImg = imagesDir() + QStringLiteral("default%1.png").arg(deviceType);
        picture = QPixmap(deviceImg);
    }
    if (picture.isNull())
        qCWarning(lcHub) << "no picture" << path << "nor" << deviceImg;
    else
        qCDebug(lcHub) << "card picture" << deviceImg;
    if (!picture.isNull()) {
        const QSize size = imageSize(picture.size(), width());
        labelImage->setFixedSize(size);
        setFixedWidth(qMax(size.width() + kCardPadding, kMinCardWidth));
    }
    labelImage->setScaledContents(true);
    labelImage->setPixmap(picture);
}

void FrameDeviceShow::report()
{
    if (!hasDevice || current.connectionType == DeviceEnumInfo::Usb) return;
    const quint8 family = current.family;
    if (family != DeviceEnumInfo::CloudFamily && family != DeviceEnumInfo::WsFamily) {
        showBattery(0); // these families tell no charge
        return;
    }
    if (!context.poller || batteryPending) return;
    batteryPending = true;
    const QString asked = current.devicePath;
    context.poller->read(family, asked, this, [this, asked](int percent) {
        batteryPending = false;
        if (asked == current.devicePath) showBattery(percent);
    });
}

void FrameDeviceShow::showBattery(int percent)
{
    lastPercent = percent;
    const QString image = batteryImage(percent);
    const QString tip = batteryTip(percent);
    const QString style = QLatin1String(kPowerStyle);
    labelPower->setPixmap(QPixmap(image));
    labelPower->setToolTip(tip);
    labelPower->setStyleSheet(style);
    labelPower->update();
    emit onReport(current.devicePath, image, typeImg, tip, style);
}

void FrameDeviceShow::setHovered(bool hovered)
{
    setStyleSheet(QLatin1String(hovered ? kHoverStyle : kNormalStyle));
}

bool FrameDeviceShow::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::Wheel:
        if (scrollArea) {
            QScrollBar* bar = scrollArea->horizontalScrollBar();
            bar->setValue(bar->value() - static_cast<QWheelEvent*>(event)->angleDelta().y());
        }
        event->accept();
        return true;
    case QEvent::Enter:
        setHovered(true);
        break;
    case QEvent::Leave:
        setHovered(false);
        break;
    case QEvent::MouseButtonPress: {
        const QString path = devicePath();
        clock()->singleShot(kClickDelayMs, this, [this, path] {
            emit onClicked(path, deviceImg);
            report();
        });
        break;
    }
    default:
        break;
    }
    return QFrame::event(event);
}

void FrameDeviceShow::mousePressEvent(QMouseEvent* event)
{
    // The card pressed last is the one that looks hovered.
    if (parentWidget())
        for (FrameDeviceShow* other :
             parentWidget()->findChildren<FrameDeviceShow*>(QString(), Qt::FindDirectChildrenOnly))
            if (other != this) other->setHovered(false);
    setHovered(true);
    QFrame::mousePressEvent(event);
}

void FrameDeviceShow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && lastPercent >= 0)
        labelPower->setToolTip(batteryTip(lastPercent));
    QFrame::changeEvent(event);
}
