#pragma once

#include <QFrame>
#include <QSize>
#include <QString>
#include <memory>

class BatteryPoller;
class Clock;
class ClockTimer;
class QLabel;
class QScrollArea;
struct DeviceEnumInfo;

// The card of one online device on the "my devices" page: picture, name, connection and
// battery badges. Cards are pooled, one slot per position on the page; a click on a card starts
// the hand-over of its device.
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

    // What every card uses: the clock of its timers, the battery poller, and the folder that
    // holds "images/" (empty: the folder the program ships them in).
    struct Context
    {
        Clock* clock = nullptr;
        BatteryPoller* poller = nullptr;
        QString appDir;
    };
    static void setContext(const Context& context);

    // The pooled card of a position, made on first use; null past the pool.
    static FrameDeviceShow* acquire(int index, QWidget* parent);
    // Hides every pooled card from that position on.
    static void hideFrom(int index);
    // The card clicked last (at first, the first card made).
    static FrameDeviceShow* selected();

    // The size of the picture on a card of cardWidth, for a picture of that size.
    static QSize imageSize(const QSize& picture, int cardWidth);

    ~FrameDeviceShow() override;

    void setScrollArea(QScrollArea* area) { scrollArea = area; }
    void setDevice(DeviceEnumInfo* device);
    // Shows the picture at path, or the default picture of the device type when it can't be
    // read, and sizes the card to it.
    void setImage(const QString& path, int deviceType);
    // Asks for the battery of a wireless device; the card updates when the answer comes.
    void report();

    DeviceEnumInfo* device() const { return current; }
    QString deviceImage() const { return deviceImg; }
    QString typeImage() const { return typeImg; }
    // Whether the window has connected this card's signals (cards keep their connections when
    // they are reused for another device).
    bool signalsConnected() const { return connected; }
    void setSignalsConnected(bool on) { connected = on; }

    // The badge and tooltip of a charge in percent, as the card shows them.
    static QString batteryImage(int percent);
    static QString connectionImage(int connectionType);
    static QString batteryTip(int percent);

signals:
    void onClicked(DeviceEnumInfo* device, QString deviceImg);
    void onReport(DeviceEnumInfo* device, QString battImg, QString typeImg, QString tip,
                  QString style);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    explicit FrameDeviceShow(QWidget* parent);
    void showBattery(int percent);
    void setHovered(bool hovered);

    DeviceEnumInfo* current = nullptr;
    QScrollArea* scrollArea = nullptr;
    bool connected = false;
    QString deviceImg;
    QString typeImg;
    int lastPercent = -1;
    bool batteryPending = false;

    QLabel* labelDeviceName;
    QLabel* labelImage;
    QLabel* labelPower;
    QLabel* labelType;
    std::unique_ptr<ClockTimer> reportTimer;
};
