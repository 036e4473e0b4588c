#include "EffectLink.h"

#include "DialogDeviceConnect.h"
#include "ModuleEfColor.h"
#include "ModuleEfLumi.h"
#include "ModuleEfMode.h"
#include "ModuleEfSpeed.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

constexpr quint8 kLedReply = 0x87;
constexpr quint8 kSideLedReply = 0x88;
constexpr int kSpeedSteps = 4; // the keyboard's speed byte runs the other way
constexpr int kGap = 16;
constexpr int kModeWidth = 300;
constexpr int kColorWidth = 440;

quint8 byteAt(const QByteArray& data, int index)
{
    return index < data.size() ? quint8(data.at(index)) : 0;
}

} // namespace

namespace EffectLink {

void bind(DialogDeviceConnect* device, const Panel& panel)
{
    QObject::connect(panel.mode, &ModuleEfMode::onModeChanged, device,
                     [device](int mode, uchar option) {
                         if (mode == ModuleEfMode::kOnOff)
                             device->DoSetLedOnOff(option != 0);
                         else
                             device->DoSetLedEffect(mode, option);
                     });
    QObject::connect(panel.bright, &ModuleEfLumi::onBrightChanged, device,
                     &DialogDeviceConnect::DoSetLedBrightness);
    QObject::connect(panel.speed, &ModuleEfSpeed::onSpeedChanged, device,
                     &DialogDeviceConnect::DoSetLedSpeed);
    QObject::connect(panel.color, &ModuleEfColor::onSetColor, device,
                     [device](const QColor& color, int option) {
                         device->DoSetLedColor(color.rgb() & 0xFFFFFF, option);
                     });
    QObject::connect(panel.color, &ModuleEfColor::onSetSideLed, device,
                     &DialogDeviceConnect::DoSetSideLed);

    QObject::connect(device, &DialogDeviceConnect::onReadBack, panel.mode,
                     [panel](const QByteArray& data) {
                         const quint8 first = byteAt(data, 0);
                         if (first == kLedReply) {
                             panel.mode->setEffect(byteAt(data, 1));
                             panel.speed->setSpeed(kSpeedSteps - byteAt(data, 2));
                             panel.bright->setBright(byteAt(data, 3));
                         } else if (first == kSideLedReply) {
                             panel.color->setSideLed(data);
                         }
                     });
}

QWidget* buildPanel(DialogDeviceConnect* device, Clock* clock, QWidget* parent, Panel* out)
{
    auto* panel = new QFrame(parent);
    auto* layout = new QHBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kGap);
    auto* mode = new ModuleEfMode(panel);
    mode->setObjectName(QStringLiteral("frameLEDMode"));
    mode->setFixedWidth(kModeWidth);
    auto* color = new ModuleEfColor(panel, clock);
    color->setObjectName(QStringLiteral("frameLEDColor"));
    color->setFixedWidth(kColorWidth);

    auto* frameBR = new QFrame(panel);
    frameBR->setObjectName(QStringLiteral("frameBR"));
    auto* levels = new QVBoxLayout(frameBR);
    levels->setContentsMargins(0, 0, 0, 0);
    levels->setSpacing(kGap);
    auto* bright = new ModuleEfLumi(frameBR);
    bright->setObjectName(QStringLiteral("frameLEDBright"));
    auto* speed = new ModuleEfSpeed(frameBR);
    speed->setObjectName(QStringLiteral("frameLEDSpeed"));
    levels->addWidget(bright, 1);
    levels->addWidget(speed, 1);

    layout->addWidget(mode);
    layout->addWidget(color);
    layout->addWidget(frameBR, 1);
    *out = {mode, color, bright, speed};
    bind(device, *out);
    return panel;
}

} // namespace EffectLink
