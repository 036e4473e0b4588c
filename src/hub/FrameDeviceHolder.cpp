#include "FrameDeviceHolder.h"

#include "DeviceEnumInfo.h"
#include "DialogDeviceConnect.h"
#include "FrameAbout.h"
#include "FrameKeySetting.h"
#include "FrameLight.h"
#include "FrameMacro.h"
#include "FrameMagic.h"
#include "FrameMain.h"
#include "HubLog.h"
#include "LinearFixing1.h"
#include "SuperLabel.h"

#include <QButtonGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

namespace {

struct NavigationEntry
{
    const char* label;
    const char* image; // a name under leftbtns/, or a picture of its own
    const char* tip;
    bool hidden;
};

// By index: 0 to 5 are the pages, 6 and 7 leave the shell.
constexpr std::array<NavigationEntry, 8> kNavigation{{
    {"label1", "shouye", QT_TRANSLATE_NOOP("FrameDeviceHolder", "首页"), false},
    {"label2", "jianweishezhi", QT_TRANSLATE_NOOP("FrameDeviceHolder", "键盘设置"), false},
    {"label3", "cizhoushezhi", QT_TRANSLATE_NOOP("FrameDeviceHolder", "磁轴设置"), false},
    {"label4", "hongshezhi", QT_TRANSLATE_NOOP("FrameDeviceHolder", "宏设置"), false},
    {"label5", "dengxiaoshezhi", QT_TRANSLATE_NOOP("FrameDeviceHolder", "灯效设置"), false},
    {"label6", "guanyu", QT_TRANSLATE_NOOP("FrameDeviceHolder", "关于"), true},
    {"label7", ":/images/User.png", QT_TRANSLATE_NOOP("FrameDeviceHolder", "用户"), true},
    {"label8", ":/images/btn-return.png", QT_TRANSLATE_NOOP("FrameDeviceHolder", "返回"), false},
}};
constexpr int kLightLabel = 4;
constexpr int kKeySettingPage = 1;
constexpr int kFirstLeavingIndex = 6;

const char* const kLabelStyleOff = "QLabel { background-color: transparent; }";
const char* const kLabelStyleOn = "QLabel { background-color: #6329B6; border-radius: 16px;}";
const char* const kToolbarStyle =
    "#FrameToolbar{background-color: #F6F6F6; border-radius: 25px;}\n";
const char* const kShellStyle = R"(
QLabel#labelName { font-size: 18px; font-weight: 600; color: #1A1A1A; }
QPushButton { font-size: 14px; color: #333333; background-color: #FFFFFF;
    border: 1px solid #E2E2E2; border-radius: 16px; padding: 0px 16px; min-height: 32px; }
QPushButton:hover { border-color: #6329B6; color: #6329B6; }
QPushButton:pressed { background-color: #EFE8F8; }
#horizontalFrame QPushButton { min-width: 80px; max-width: 80px; padding: 0px; }
#horizontalFrame QPushButton:checked { background-color: #6329B6; border-color: #6329B6;
    color: #FFFFFF; }
)";
constexpr int kLabelSize = 56;
constexpr int kBadgeSize = 25;

// The label's picture when not selected (0) or selected (1).
QString picture(const NavigationEntry& entry, int state)
{
    const QString image = QLatin1String(entry.image);
    if (image.startsWith(u':')) return image;
    const char* folder = state ? ":/images/leftbtns/1/" : ":/images/leftbtns/0/";
    return QLatin1String(folder) + image + QStringLiteral(".png");
}

template <typename T> int indexOfObject(const QList<T*>& list, const QObject* object)
{
    const auto found = std::find_if(list.cbegin(), list.cend(),
                                    [object](const T* item) { return item == object; });
    return found == list.cend() ? -1 : int(found - list.cbegin());
}

} // namespace

FrameDeviceHolder::FrameDeviceHolder(DialogDeviceConnect* connection,
                                     ModuleGenKeymapping& keyTables, ModuleMacroManager& macroStore,
                                     const QString& worksFolder, Clock* clock, QWidget* parent)
    : QFrame(parent), device(connection), clock(clock), keys(keyTables), macros(macroStore)
{
    setObjectName(QStringLiteral("FrameDeviceHolder"));
    buildForm();

    auto* keySetting = new FrameKeySetting(device, keys, macros, clock, this);
    frameKeySetting = keySetting;
    frameMain = new FrameMain(device, this, clock);
    auto* magic = new FrameMagic(device, clock, this);
    auto* macro = new FrameMacro(macros, this, clock);
    frameLight = new FrameLight(device, worksFolder, clock, this);
    auto* about = new FrameAbout(this);
    keySetting->hide();
    pages = {frameMain, keySetting, magic, macro, frameLight, about};
    auto* pageLayout = findChild<QHBoxLayout*>(QStringLiteral("horizontalLayoutBR"));
    for (QWidget* page : std::as_const(pages)) {
        page->setFixedSize(kPageSize);
        pageLayout->addWidget(page, 0, Qt::AlignLeft | Qt::AlignTop);
    }

    for (SuperLabel* label : std::as_const(labels))
        label->installEventFilter(this);
    for (QPushButton* button : std::as_const(layerButtons))
        button->installEventFilter(this);
    showPage(labels.first(), 0);
    pushButtonPairing->hide();

    connect(buttonGroupLayer, &QButtonGroup::idClicked, this, &FrameDeviceHolder::onLayerClicked);
    connect(pushButtonReset, &QPushButton::clicked, device, &DialogDeviceConnect::DoFactoryReset);
    connect(pushButtonFixline, &QPushButton::clicked, this, &FrameDeviceHolder::openCalibration);
    connect(device, &DialogDeviceConnect::onReadDone, this, [keySetting] {
        keySetting->RefreshPage();
        qCDebug(lcHub) << "DialogDeviceConnect::onReadDone";
    });
}

FrameDeviceHolder::~FrameDeviceHolder() = default;

void FrameDeviceHolder::buildForm()
{
    setStyleSheet(QLatin1String(kShellStyle));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(30, 0, 32, 16);
    layout->setSpacing(38);

    auto* frameLeft = new QFrame(this);
    frameLeft->setObjectName(QStringLiteral("frameLeft"));
    auto* leftLayout = new QVBoxLayout(frameLeft);
    leftLayout->setContentsMargins(0, 4, 0, 4);
    leftLayout->setSpacing(14);
    for (int i = 0; i < int(kNavigation.size()); ++i) {
        const NavigationEntry& entry = kNavigation[i];
        auto* label = new SuperLabel(frameLeft);
        label->setObjectName(QLatin1String(entry.label));
        label->setFixedSize(kLabelSize, kLabelSize);
        label->setAlignment(Qt::AlignCenter);
        label->setCursor(Qt::PointingHandCursor);
        label->setPictures(picture(entry, 1), picture(entry, 0));
        label->setStyles(QLatin1String(kLabelStyleOn), QLatin1String(kLabelStyleOff));
        label->setSelected(false);
        label->setVisible(!entry.hidden);
        if (i == kFirstLeavingIndex) leftLayout->addStretch(1);
        leftLayout->addWidget(label);
        labels.append(label);
    }
    layout->addWidget(frameLeft, 0, Qt::AlignTop);
    frameLeft->setFixedHeight(kPageSize.height() + 72);

    auto* frameRight = new QFrame(this);
    frameRight->setObjectName(QStringLiteral("frameRight"));
    auto* rightLayout = new QVBoxLayout(frameRight);
    rightLayout->setContentsMargins(0, 0, 0, 0);
    rightLayout->setSpacing(16);
    rightLayout->addWidget(buildToolbar());
    auto* holder = new QFrame(frameRight);
    holder->setObjectName(QStringLiteral("FrameHoder"));
    auto* pageLayout = new QHBoxLayout(holder);
    pageLayout->setObjectName(QStringLiteral("horizontalLayoutBR"));
    pageLayout->setContentsMargins(0, 0, 0, 0);
    rightLayout->addWidget(holder, 1);
    layout->addWidget(frameRight, 1);

    retranslate(false);
}

QWidget* FrameDeviceHolder::buildToolbar()
{
    auto* toolbar = new QFrame(this);
    toolbar->setObjectName(QStringLiteral("FrameToolbar"));
    toolbar->setStyleSheet(QLatin1String(kToolbarStyle));
    toolbar->setFixedSize(kPageSize.width(), 56);
    auto* layout = new QHBoxLayout(toolbar);
    layout->setContentsMargins(24, 0, 12, 0);
    layout->setSpacing(12);

    labelName = new QLabel(toolbar);
    labelName->setObjectName(QStringLiteral("labelName"));
    labelBatt = new QLabel(toolbar);
    labelBatt->setObjectName(QStringLiteral("labelBatt"));
    labelConn = new QLabel(toolbar);
    labelConn->setObjectName(QStringLiteral("labelConn"));
    for (QLabel* badge : {labelBatt, labelConn}) {
        badge->setFixedSize(kBadgeSize, kBadgeSize);
        badge->setScaledContents(true);
    }
    labelConn->setPixmap(QPixmap(QStringLiteral(":/images/dev/usb.png")));
    labelBatt->hide();
    layout->addWidget(labelName);
    layout->addWidget(labelBatt);
    layout->addWidget(labelConn);
    layout->addStretch(1);

    horizontalFrame = new QFrame(toolbar);
    horizontalFrame->setObjectName(QStringLiteral("horizontalFrame"));
    auto* layerLayout = new QHBoxLayout(horizontalFrame);
    layerLayout->setContentsMargins(0, 0, 0, 0);
    layerLayout->setSpacing(8);
    buttonGroupLayer = new QButtonGroup(this);
    buttonGroupLayer->setObjectName(QStringLiteral("buttonGroupLayer"));
    for (int i = 0; i < kLayerCount; ++i) {
        auto* button = new QPushButton(horizontalFrame);
        button->setObjectName(QStringLiteral("pushButtonLayer%1").arg(i));
        button->setCheckable(true);
        button->setCursor(Qt::PointingHandCursor);
        button->setFocusPolicy(Qt::NoFocus);
        buttonGroupLayer->addButton(button); // automatic ids: -2 for the first, then down
        layerLayout->addWidget(button);
        layerButtons.append(button);
    }
    layout->addWidget(horizontalFrame);

    pushButtonPairing = new QPushButton(toolbar);
    pushButtonPairing->setObjectName(QStringLiteral("pushButtonPairing"));
    pushButtonReset = new QPushButton(toolbar);
    pushButtonReset->setObjectName(QStringLiteral("pushButtonReset"));
    pushButtonFixline = new QPushButton(toolbar);
    pushButtonFixline->setObjectName(QStringLiteral("pushButtonFixline"));
    for (QPushButton* button : {pushButtonPairing, pushButtonReset, pushButtonFixline}) {
        button->setCursor(Qt::PointingHandCursor);
        button->setFocusPolicy(Qt::NoFocus);
        layout->addWidget(button);
    }
    return toolbar;
}

void FrameDeviceHolder::retranslate(bool languageChange)
{
    for (int i = 0; i < kLayerCount; ++i)
        layerButtons.at(i)->setText(tr("板载 %1").arg(i + 1));
    pushButtonPairing->setText(tr("对码"));
    pushButtonReset->setText(tr("恢复默认"));
    pushButtonFixline->setText(tr("行程校准"));
    for (int i = 0; i < labels.size(); ++i)
        labels.at(i)->setTip(tr(kNavigation[i].tip));
    // Deliberately not the form's text: after a language change the light label reads
    // "light settings".
    if (languageChange) labels.at(kLightLabel)->setTip(tr("灯光设置"));
}

void FrameDeviceHolder::setDevice(const DeviceEnumInfo& deviceInfo, const QString& deviceImage,
                                  const QString& name)
{
    current = deviceInfo;
    frameMain->setDevicePicture(deviceImage);
    labelName->setText(name);
}

void FrameDeviceHolder::showPage(SuperLabel* label, int index)
{
    if (device->isReadingAll()) return;
    if (index >= kFirstLeavingIndex) {
        emit onReturn();
        return;
    }
    if (index < 0 || index >= pages.size()) return;
    if (label) label->setSelected(true);
    for (QWidget* page : std::as_const(pages))
        page->hide();
    pages.at(index)->show();
    pageIndex = index;
    horizontalFrame->setVisible(index == kKeySettingPage);
}

void FrameDeviceHolder::setLayer(int layer)
{
    if (layer < 0 || layer >= kLayerCount) return;
    layerButtons.at(layer)->click();
}

void FrameDeviceHolder::onLayerClicked(int id)
{
    // Automatic group ids: -2 is the first button.
    const int layer = -id - 2;
    if (layer < 0 || layer >= kLayerCount) return;
    device->DoSetProfile(quint8(layer));
}

void FrameDeviceHolder::showBattery(const QString& devicePath, const QString& battImg,
                                    const QString& typeImg, const QString& tip,
                                    const QString& style)
{
    if (devicePath.isEmpty() || devicePath != current.devicePath) return;
    labelBatt->setVisible(!battImg.isEmpty());
    labelBatt->setPixmap(QPixmap(battImg));
    labelBatt->setStyleSheet(style);
    labelBatt->setToolTip(tip);
    labelConn->setPixmap(QPixmap(typeImg));
}

void FrameDeviceHolder::openCalibration()
{
    // The guide runs the whole calibration and closes itself, with the progress view over it.
    auto* guide = new LinearFixing1(device, clock, window());
    guide->setAttribute(Qt::WA_DeleteOnClose);
    guide->open();
}

bool FrameDeviceHolder::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        // Compared as objects: the filter watches labels and buttons alike, and a cast to
        // either type of an object of the other is undefined.
        const int labelIndex = indexOfObject(labels, watched);
        if (labelIndex >= 0) {
            showPage(labels.at(labelIndex), labelIndex);
            return false;
        }
        // A release that began elsewhere presses the button too; the button's own release is
        // taken here so that one press gives one click.
        const int layerIndex = indexOfObject(layerButtons, watched);
        if (layerIndex >= 0) {
            layerButtons.at(layerIndex)->click();
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void FrameDeviceHolder::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate(true);
    QFrame::changeEvent(event);
}
