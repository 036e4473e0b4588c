#pragma once

#include "DeviceEnumInfo.h"

#include <QDateTime>
#include <QFrame>
#include <QSize>
#include <QString>
#include <memory>

class BatteryPoller;
class Clock;
class ClockTimer;
class QLabel;
class QScrollArea;

// The card of one online device on the "my devices" page: picture, name, connection and
// battery badges. The window keeps a pool of them, one per position on the page, and gives each
// a copy of its device's record; a click on a card starts the hand-over of its device, named by
// its path.
class FrameDeviceShow : public QFrame
{
    Q_OBJECT

public:
    static constexpr int kPoolSize = 256;
    static constexpr int kFirstReportMs = 2000;
    static constexpr int kReportPeriodMs = 10000;
    static constexpr int kClickDelayMs = 50;
    static constexpr int kMaxImageHeight = 210;
    static constexpr int kImageMargin = 40; // card width minus this is the room for the picture
    static constexpr int kCardPadding = 80; // card width is the picture's plus this
    static constexpr int kMinCardWidth = 290;
    static constexpr int kKeyboardCardWidth = 970;
    static constexpr int kSmallCardWidth = 280; // mice and type 2

    // What every card uses: the clock of its timers (null: the real one), the battery poller
    // (null: none asked), and the folder that holds "images/" (empty: the folder the program
    // ships them in).
    struct Context
    {
        Clock* clock = nullptr;
        BatteryPoller* poller = nullptr;
        QString appDir;
    };

    // The size of the picture on a card of cardWidth, for a picture of that size.
    static QSize imageSize(const QSize& picture, int cardWidth);

    // context's clock and poller must outlive the card.
    FrameDeviceShow(const Context& context, QWidget* parent);
    ~FrameDeviceShow() override;

    void setScrollArea(QScrollArea* area) { scrollArea = area; }
    // Shows the device and asks for its battery 2 s later; a picture already shown is kept.
    void setDevice(const DeviceEnumInfo& device);
    // Shows the picture at path, or the default picture of the device type when it can't be
    // read, and sizes the card to it.
    void setImage(const QString& path, int deviceType);
    // Asks for the battery of a wireless device; the card updates when the answer comes.
    void report();

    // The record shown, as the last snapshot had it; null before the first.
    const DeviceEnumInfo* device() const { return hasDevice ? &current : nullptr; }
    QString devicePath() const { return hasDevice ? current.devicePath : QString(); }
    QString deviceImage() const { return deviceImg; }
    QString typeImage() const { return typeImg; }
    void setHovered(bool hovered);

    // The badge and tooltip of a charge in percent, as the card shows them.
    static QString batteryImage(int percent);
    static QString connectionImage(int connectionType);
    static QString batteryTip(int percent);

signals:
    void onClicked(const QString& devicePath, const QString& deviceImg);
    void onReport(const QString& devicePath, const QString& battImg, const QString& typeImg,
                  const QString& tip, const QString& style);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showBattery(int percent);
    Clock* clock() const;
    QString imagesDir() const;

    Context context;
    DeviceEnumInfo current;
    bool hasDevice = false;
    QScrollArea* scrollArea = nullptr;
    QString deviceImg;
    QString typeImg;
    QString imagePath; // the picture asked for last, the type it was asked with, its file's age
    int imageType = -1;
    QDateTime imageModified;
    int lastPercent = -1;
    bool batteryPending = false;

    QLabel* labelDeviceName;
    QLabel* labelImage;
    QLabel* labelPower;
    QLabel* labelType;
    std::unique_ptr<ClockTimer> reportTimer;
};
