#include "FrameMain.h"

#include "DialogDeviceConnect.h"
#include "EffectLink.h"
#include "MagnetTables.h"
#include "ModuleLinear.h"
#include "ModuleRtSet.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

namespace {

constexpr QSize kPictureBox{460, 260};
constexpr int kTopHeight = 324;
constexpr int kGap = 16;

// The home page's panels: light grey cards on the white page.
const char* const kStyle = R"(
#frameInfo, #frameRTSetting, #frameLinear, #frameLEDMode, #frameLEDColor, #frameLEDBright,
#frameLEDSpeed { background-color: #F6F6F6; border-radius: 24px; }
#frameLinear QLabel#labelTitle1, #frameLEDMode QLabel#labelTitle1, QLabel#labelTitle1 {
    color: #26262C; font-size: 15px; font-weight: 600; }
)";

// Travel tables the page writes. Deliberate: the control titled for rapid trigger writes the
// actuation tables, and the one titled for travel writes the rapid trigger tables.
constexpr quint8 kActuationPress = 0;
constexpr quint8 kActuationRelease = 1;
constexpr quint8 kRapidPress = 2;
constexpr quint8 kRapidRelease = 3;
constexpr quint8 kCommit = 1;

} // namespace

FrameMain::FrameMain(DialogDeviceConnect* deviceIn, QWidget* parent, Clock* clock)
    : QFrame(parent), device(deviceIn)
{
    setObjectName(QStringLiteral("FrameMain"));
    setStyleSheet(QLatin1String(kStyle));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kGap);
    layout->addWidget(buildTop());
    EffectLink::Panel lighting{};
    QWidget* frameBottom = EffectLink::buildPanel(device, clock, this, &lighting);
    frameBottom->setObjectName(QStringLiteral("frameBottom"));
    layout->addWidget(frameBottom, 1);
    retranslate();

    connect(frameRTSetting, &ModuleRtSet::onSetValue, this, [this](float value, int) {
        writeAllKeys(kActuationPress, value);
        writeAllKeys(kActuationRelease, value);
    });
    connect(frameLinearSet, &ModuleLinear::onSetValue, this, [this](float value, int type) {
        writeAllKeys(type == 0 ? kRapidPress : kRapidRelease, value);
    });
}

QWidget* FrameMain::buildTop()
{
    auto* frameTop = new QFrame(this);
    frameTop->setObjectName(QStringLiteral("frameTop"));
    frameTop->setFixedHeight(kTopHeight);
    auto* topLayout = new QHBoxLayout(frameTop);
    topLayout->setContentsMargins(0, 0, 0, 0);
    topLayout->setSpacing(kGap);

    auto* frameInfo = new QFrame(frameTop);
    frameInfo->setObjectName(QStringLiteral("frameInfo"));
    auto* infoLayout = new QVBoxLayout(frameInfo);
    labelPic = new QLabel(frameInfo);
    labelPic->setObjectName(QStringLiteral("labelPic"));
    labelPic->setAlignment(Qt::AlignCenter);
    labelPic->setPixmap(QPixmap(QStringLiteral(":/images/Orbe-Kb3.png")));
    labelPic->hide();
    infoLayout->addWidget(labelPic, 0, Qt::AlignCenter);
    topLayout->addWidget(frameInfo, 1);

    auto* frameRight = new QFrame(frameTop);
    frameRight->setObjectName(QStringLiteral("frameRight"));
    auto* rightLayout = new QHBoxLayout(frameRight);
    rightLayout->setContentsMargins(0, 0, 0, 0);
    rightLayout->setSpacing(kGap);
    frameRTSetting = new ModuleRtSet(frameRight);
    frameRTSetting->setObjectName(QStringLiteral("frameRTSetting"));
    frameRTSetting->setFixedWidth(300);
    rightLayout->addWidget(frameRTSetting);

    auto* frameLinear = new QFrame(frameRight);
    frameLinear->setObjectName(QStringLiteral("frameLinear"));
    frameLinear->setFixedWidth(300);
    auto* linearLayout = new QVBoxLayout(frameLinear);
    linearLayout->setContentsMargins(20, 12, 20, 12);
    labelTitle1 = new QLabel(frameLinear);
    labelTitle1->setObjectName(QStringLiteral("labelTitle1"));
    frameLinearSet = new ModuleLinear(frameLinear);
    frameLinearSet->setObjectName(QStringLiteral("frameLinearSet"));
    linearLayout->addWidget(labelTitle1);
    linearLayout->addWidget(frameLinearSet, 1);
    rightLayout->addWidget(frameLinear);
    topLayout->addWidget(frameRight);
    return frameTop;
}

void FrameMain::retranslate()
{
    frameRTSetting->setTitle(tr("RT行程设置(全局)"));
    labelTitle1->setText(tr("键程设置(全局)"));
}

void FrameMain::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QFrame::changeEvent(event);
}

void FrameMain::writeAllKeys(quint8 table, float millimetres)
{
    // Key code FF has no place in the connection's cache: the per-key pages keep their values
    // until the next read.
    device->DoSetMagnetism(table, kAllKeys, MagnetTables::rawFromMillimetres(millimetres), kCommit);
}

void FrameMain::setDevicePicture(const QString& path)
{
    const QPixmap picture(path);
    if (!picture.isNull())
        labelPic->setPixmap(
            picture.scaled(kPictureBox, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    labelPic->show();
}
