#include "ModuleEfColor.h"

#include "Clock.h"
#include "ColorDelegate.h"
#include "ColorLabel.h"
#include "ColorSlider.h"
#include "ColorSquare.h"
#include "DialogColorPicker.h"
#include "LightLog.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QStandardItemModel>
#include <QTableView>
#include <array>

namespace {

constexpr std::array<QRgb, ModuleEfColor::kSystemColors> kSystemColorList{
    0xFF0000, 0x00FF00, 0x0000FF, 0xFFFF00, 0xFF00FF, 0xFF8000, 0x00FFFF};

// Turns of the system colour wheel, shared by every panel of the program.
int g_rotation = 0;

constexpr int kReplyEffect = 1;
constexpr int kReplySpeed = 2;
constexpr int kReplyBrightness = 3;
constexpr int kReplyColorMode = 4;
constexpr int kReplyRed = 5;
constexpr quint8 kCustomColorMode = 8;
constexpr quint8 kRainbowColorMode = 7;
constexpr int kLoggedReplyBytes = 16;

const char* const kSideColorStyle =
    "background-color: rgb(%1, %2, %3);border: none; border-radius:16px;";

quint8 byteAt(const QByteArray& data, int index)
{
    return index < data.size() ? quint8(data.at(index)) : 0;
}

// Automatic group ids run from -2 down: -2 is the first button.
int placeOf(int id)
{
    return qAbs(id) - 2;
}

// Clicks the button at a place of the group; a place past the group does nothing.
void clickPlace(QButtonGroup* group, int place)
{
    const QList<QAbstractButton*> buttons = group->buttons();
    if (place >= 0 && place < buttons.size()) buttons.at(place)->click();
}

} // namespace

ModuleEfColor::ModuleEfColor(QWidget* parent, Clock* clockIn)
    : QFrame(parent), color(Qt::white), clock(clockIn ? clockIn : QtClock::shared())
{
    buildForm();
    dialogPicker = new DialogColorPicker(this, clock);
    dialogPicker->setObjectName(QStringLiteral("DialogColorPickerSide"));
    pickerTimer = clock->createTimer(
        [this] {
            pickerTimer->stop();
            sendSideBlock();
        },
        true);

    connect(delegate, &ColorDelegate::onClicked, this, &ModuleEfColor::onSystemClicked);
    connect(colorSlider, &QSlider::valueChanged, this,
            [this](int hue) { colorSquare->setHue(hue / 359.0); });
    connect(colorSquare, &ColorSquare::colorSelected, this, &ModuleEfColor::onSquareColor);
    for (ColorLabel* swatch : std::as_const(swatches))
        connect(swatch, &ColorLabel::pressed, this, &ModuleEfColor::onSwatchPressed);
    connect(buttonGroupS, &QButtonGroup::idClicked, this, [this](int id) {
        speed = quint8(placeOf(id));
        sendSideBlock();
    });
    connect(buttonGroupL, &QButtonGroup::idClicked, this, [this](int id) {
        brightness = quint8(placeOf(id));
        sendSideBlock();
    });
    connect(buttonGroupC, &QButtonGroup::idClicked, this, [this](int id) {
        colorMode = quint8(placeOf(id));
        labelColor->setVisible(colorMode != 0);
        labelPickup->setVisible(colorMode != 0);
        sendSideBlock();
    });
    connect(buttonGroupE, &QButtonGroup::idClicked, this, [this](int id) {
        effect = quint8(placeOf(id));
        sendSideBlock();
    });
    connect(dialogPicker, &DialogColorPicker::onPickupColor, this, &ModuleEfColor::onPickerColor);
    labelPickup->installEventFilter(this);
    labelColor->installEventFilter(this);

    // The side light starts on the first choice of each group, shown and not sent.
    blocking = true;
    for (QButtonGroup* group : {buttonGroupE, buttonGroupS, buttonGroupL, buttonGroupC})
        clickPlace(group, 0);
    blocking = false;
}

ModuleEfColor::~ModuleEfColor() = default;

const QList<QColor>& ModuleEfColor::systemColors()
{
    static const QList<QColor> list = [] {
        QList<QColor> out;
        for (QRgb rgb : kSystemColorList)
            out.append(QColor(rgb));
        return out;
    }();
    return list;
}

int ModuleEfColor::rotation()
{
    return g_rotation;
}

QColor ModuleEfColor::centreColor() const
{
    return model->item(0, ColorDelegate::kCentreColumn)->foreground().color();
}

void ModuleEfColor::recolorSystemTable()
{
    const QList<QColor>& list = systemColors();
    for (int i = 0; i < kSystemColors; ++i) {
        const int entry = ((g_rotation + i) % kSystemColors + kSystemColors) % kSystemColors;
        model->item(0, i)->setForeground(list.at(entry));
    }
    tableView->viewport()->update();
}

void ModuleEfColor::onSystemClicked(int column)
{
    // The wheel turns so that the clicked colour comes to the centre.
    g_rotation += column - ColorDelegate::kCentreColumn;
    recolorSystemTable();
    const QColor centre = centreColor();
    const int index = systemColors().indexOf(centre);
    if (index >= 0) emit onSetColor(centre, index);
}

void ModuleEfColor::onSquareColor(const QColor& picked)
{
    if (ColorLabel* selected = ColorLabel::selectedOf(swatches.first()->parent()))
        selected->setColor(picked);
    emit onSetColor(picked, kCustomOption);
}

void ModuleEfColor::onSwatchPressed(const QColor& swatchColor)
{
    // A kept colour goes back into the square and to the keyboard.
    {
        const QSignalBlocker blocker(colorSlider);
        colorSlider->setValue(qMax(0, swatchColor.hsvHue()));
    }
    colorSquare->setColor(swatchColor);
    emit onSetColor(swatchColor, kCustomOption);
}

QByteArray ModuleEfColor::sideBlock() const
{
    QByteArray block(kSideBlockSize, '\0');
    block[1] = char(effect);
    block[2] = char(speed);
    block[3] = char(brightness);
    block[4] = char(colorMode == 0 ? kRainbowColorMode : kCustomColorMode);
    block[5] = char(color.red());
    block[6] = char(color.green());
    block[7] = char(color.blue());
    return block;
}

void ModuleEfColor::showSideColor()
{
    labelColor->setStyleSheet(
        QString::fromLatin1(kSideColorStyle).arg(color.red()).arg(color.green()).arg(color.blue()));
}

void ModuleEfColor::sendSideBlock()
{
    showSideColor();
    if (!blocking) emit onSetSideLed(sideBlock());
}

void ModuleEfColor::onPickerColor(const QColor& picked)
{
    // A drag in the picker reports many colours: one block goes out per pause.
    color = picked;
    pickerTimer->stop();
    pickerTimer->start(kSideSendDelayMs);
}

void ModuleEfColor::setSideLed(const QByteArray& data)
{
    qCDebug(lcLighting).noquote() << "get_:"
                                  << QString::fromLatin1(
                                         data.left(kLoggedReplyBytes).toHex().toUpper());
    blocking = true;
    color =
        QColor(byteAt(data, kReplyRed), byteAt(data, kReplyRed + 1), byteAt(data, kReplyRed + 2));
    clickPlace(buttonGroupE, byteAt(data, kReplyEffect));
    clickPlace(buttonGroupS, byteAt(data, kReplySpeed));
    clickPlace(buttonGroupL, byteAt(data, kReplyBrightness));
    clickPlace(buttonGroupC, byteAt(data, kReplyColorMode) == kCustomColorMode ? 1 : 0);
    showSideColor();
    blocking = false;
}

bool ModuleEfColor::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease &&
        (watched == labelPickup || watched == labelColor)) {
        dialogPicker->setColor(color);
        dialogPicker->showAt(-1, -1);
        return true;
    }
    return QFrame::eventFilter(watched, event);
}

void ModuleEfColor::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QFrame::changeEvent(event);
}
