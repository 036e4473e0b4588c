#include "DialogColorPicker.h"

#include "Clock.h"
#include "ColorPipette.h"
#include "ColorSlider.h"
#include "ColorSquare.h"
#include "LightLog.h"

#include <QCursor>
#include <QEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr QSize kSquareSize{300, 200};
constexpr int kHueMax = 360;
constexpr int kCursorSize = 32;
constexpr int kChannelMax = 255;

const char* const kPreviewStyle = "background-color:rgb(%1,%2,%3); border-radius: 15px;";
const char* const kDialogStyle = R"(
#frameBack { background-color: #FFFFFF; border: 1px solid #D6D6DC; }
QLabel { color: #5C5C66; font-size: 13px; }
QLineEdit { border: 1px solid #E2E2E2; border-radius: 8px; padding: 2px 6px; min-height: 24px;
    background-color: #F6F6F6; color: #26262C; }
QLineEdit:focus { border-color: #6329B6; background-color: #FFFFFF; }
QLineEdit#lineEditHex { background-color: transparent; border: none; font-weight: 600; }
QPushButton { background-color: #6329B6; color: #FFFFFF; border: none; border-radius: 14px;
    min-height: 28px; padding: 0px 18px; font-size: 13px; }
QPushButton:hover { background-color: #7A45C8; }
)";

QImage grabScreen(const QPoint& global)
{
    QScreen* screen = QGuiApplication::screenAt(global);
    if (!screen) screen = QGuiApplication::primaryScreen();
    if (!screen) return {};
    const QPoint local = global - screen->geometry().topLeft();
    return screen->grabWindow(0, local.x(), local.y(), 1, 1).toImage();
}

} // namespace

DialogColorPicker::DialogColorPicker(QWidget* parent, Clock* clock)
    : QDialog(parent, Qt::Tool | Qt::FramelessWindowHint), m_color(0, 220, 0),
      m_clock(clock ? clock : QtClock::shared()), m_pointer([] { return QCursor::pos(); }),
      m_grab(&grabScreen)
{
    setObjectName(QStringLiteral("DialogColorPicker"));
    buildForm();
    m_pipette = new ColorPipette(this);
    labelPick->installEventFilter(this);
    m_pipette->installEventFilter(this);
    m_pipetteTimer = m_clock->createTimer([this] { pipetteTick(); }, false);

    connect(horizontalSlider, &QSlider::valueChanged, this,
            [this](int hue) { square->setHue(hue / double(kHueMax)); });
    connect(square, &ColorSquare::colorSelected, this, &DialogColorPicker::onColorSelected);
    const QList<QLineEdit*> boxes{lineEditR, lineEditG, lineEditB};
    for (int channel = 0; channel < boxes.size(); ++channel)
        connect(boxes.at(channel), &QLineEdit::textEdited, this,
                [this, channel](const QString& text) { onChannelEdited(channel, text); });
    connect(pushButton, &QPushButton::clicked, this, &DialogColorPicker::finish);
    setColor(m_color);
}

DialogColorPicker::~DialogColorPicker() = default;

void DialogColorPicker::buildForm()
{
    setStyleSheet(QLatin1String(kDialogStyle));
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* back = new QFrame(this);
    back->setObjectName(QStringLiteral("frameBack"));
    outer->addWidget(back);
    auto* layout = new QVBoxLayout(back);
    layout->setContentsMargins(16, 16, 16, 14);
    layout->setSpacing(12);

    auto* framePad = new QFrame(back);
    framePad->setObjectName(QStringLiteral("framePad"));
    auto* padLayout = new QVBoxLayout(framePad);
    padLayout->setContentsMargins(0, 0, 0, 0);
    square = new ColorSquare(framePad);
    square->setObjectName(QStringLiteral("colorSquare"));
    square->setFixedSize(kSquareSize);
    padLayout->addWidget(square);
    layout->addWidget(framePad);

    auto* hueRow = new QHBoxLayout;
    hueRow->setSpacing(10);
    labelPick = new QLabel(back);
    labelPick->setObjectName(QStringLiteral("labelPick"));
    labelPick->setFixedSize(28, 28);
    labelPick->setScaledContents(true);
    labelPick->setPixmap(QPixmap(QStringLiteral(":/images/pickup2.png")));
    labelPick->setCursor(Qt::PointingHandCursor);
    horizontalSlider = new ColorSlider(back);
    horizontalSlider->setObjectName(QStringLiteral("horizontalSlider"));
    horizontalSlider->setRange(0, kHueMax);
    labelColor = new QLabel(back);
    labelColor->setObjectName(QStringLiteral("labelColor"));
    labelColor->setFixedSize(30, 30);
    hueRow->addWidget(labelPick);
    hueRow->addWidget(horizontalSlider, 1);
    hueRow->addWidget(labelColor);
    layout->addLayout(hueRow);

    auto* numbers = new QHBoxLayout;
    numbers->setSpacing(6);
    const char* names[] = {"R", "G", "B"};
    QLineEdit** boxes[] = {&lineEditR, &lineEditG, &lineEditB};
    for (int i = 0; i < 3; ++i) {
        auto* label = new QLabel(QLatin1String(names[i]), back);
        label->setObjectName(QStringLiteral("labelN%1").arg(i));
        auto* box = new QLineEdit(back);
        box->setObjectName(QStringLiteral("lineEdit") + QLatin1String(names[i]));
        box->setAlignment(Qt::AlignCenter);
        box->setMaxLength(3);
        box->setFixedWidth(58);
        *boxes[i] = box;
        numbers->addWidget(label);
        numbers->addWidget(box);
        if (i < 2) numbers->addSpacing(6);
    }
    numbers->addStretch(1);
    layout->addLayout(numbers);

    auto* bottom = new QHBoxLayout;
    lineEditHex = new QLineEdit(back);
    lineEditHex->setObjectName(QStringLiteral("lineEditHex"));
    pushButton = new QPushButton(back);
    pushButton->setObjectName(QStringLiteral("pushButton"));
    pushButton->setCursor(Qt::PointingHandCursor);
    bottom->addWidget(lineEditHex, 1);
    bottom->addWidget(pushButton);
    layout->addLayout(bottom);
    retranslate();
}

void DialogColorPicker::retranslate()
{
    pushButton->setText(tr("完成"));
    labelPick->setToolTip(m_pipetteAvailable ? tr("按住并拖到屏幕上任意位置取色")
                                             : tr("此桌面不允许程序读取屏幕，屏幕取色不可用"));
}

void DialogColorPicker::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QDialog::changeEvent(event);
}

void DialogColorPicker::setScreenSource(PointerSource pointer, ScreenGrab grab)
{
    m_pointer = std::move(pointer);
    m_grab = std::move(grab);
}

void DialogColorPicker::setColor(const QColor& color)
{
    if (!color.isValid()) return;
    m_color = color.toRgb();
    {
        const QSignalBlocker blocker(horizontalSlider);
        horizontalSlider->setValue(std::max(0, m_color.hsvHue()));
    }
    square->setColor(m_color);
    lineEditR->setText(QString::number(m_color.red()));
    lineEditG->setText(QString::number(m_color.green()));
    lineEditB->setText(QString::number(m_color.blue()));
    showColor();
}

void DialogColorPicker::onColorSelected(const QColor& color)
{
    if (!color.isValid()) return; // a screen that gave no picture
    m_color = color.toRgb();
    lineEditR->setText(QString::number(m_color.red()));
    lineEditG->setText(QString::number(m_color.green()));
    lineEditB->setText(QString::number(m_color.blue()));
    updateColor();
}

void DialogColorPicker::onChannelEdited(int channel, const QString& text)
{
    // Not a number reads as 0; the channel keeps to its range.
    const int value = std::clamp(text.trimmed().toInt(), 0, kChannelMax);
    if (channel == 0) m_color.setRed(value);
    if (channel == 1) m_color.setGreen(value);
    if (channel == 2) m_color.setBlue(value);
    updateColor();
}

void DialogColorPicker::showColor()
{
    m_hex = QString::asprintf("#%02X%02X%02X", m_color.red(), m_color.green(), m_color.blue());
    lineEditHex->setText(m_hex);
    labelColor->setStyleSheet(QString::fromLatin1(kPreviewStyle)
                                  .arg(m_color.red())
                                  .arg(m_color.green())
                                  .arg(m_color.blue()));
}

void DialogColorPicker::updateColor()
{
    emit onPickupColor(m_color);
    showColor();
    emit onPickupColor(m_color);
}

void DialogColorPicker::showAt(int x, int y)
{
    adjustSize();
    QPoint at(x, y);
    if (x == -1 || y == -1) {
        const QPoint pointer = m_pointer();
        at = QPoint(pointer.x() - width() / 2, pointer.y());
    }
    move(at);
    show();
}

void DialogColorPicker::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    probeScreen();
    m_pipetteTimer->start(kPipetteTickMs);
    QTimer::singleShot(kFocusDelayMs, this, [this] {
        raise();
        activateWindow();
        setFocus();
    });
}

void DialogColorPicker::hideEvent(QHideEvent* event)
{
    m_pipette->hide();
    QDialog::hideEvent(event);
}

void DialogColorPicker::probeScreen()
{
    const bool available = !m_grab(m_pointer()).isNull();
    if (available != m_pipetteAvailable) {
        m_pipetteAvailable = available;
        if (!available)
            qCWarning(lcLighting) << "the screen can't be read here; the pipette is off";
        retranslate();
    }
}

void DialogColorPicker::finish()
{
    hide();
    m_pipette->hide();
}

bool DialogColorPicker::event(QEvent* event)
{
    // A click elsewhere closes the picker, but not while the pipette is out there.
    if (event->type() == QEvent::WindowDeactivate && !m_pipette->isVisible()) hide();
    return QDialog::event(event);
}

bool DialogColorPicker::eventFilter(QObject* watched, QEvent* event)
{
    const auto type = event->type();
    if (type == QEvent::MouseButtonPress) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() == Qt::LeftButton) {
            qCDebug(lcLighting) << "全局鼠标左键按下，坐标：" << watched
                                << mouse->globalPosition().toPoint();
            if (watched == labelPick && m_pipetteAvailable) {
                m_lastPointer = QPoint(-1, -1);
                m_pipette->show();
                QTimer::singleShot(kCursorDelayMs, m_pipette, [this] {
                    m_pipette->setCursor(
                        QCursor(QPixmap(QStringLiteral(":/images/pickup2.png"))
                                    .scaled(kCursorSize, kCursorSize, Qt::KeepAspectRatio,
                                            Qt::SmoothTransformation)));
                });
            } else if (watched == m_pipette) {
                m_pipette->hide();
            }
        } else if (mouse->button() == Qt::RightButton) {
            qCDebug(lcLighting) << "全局鼠标右键按下，坐标：" << mouse->globalPosition().toPoint();
        }
    } else if (type == QEvent::MouseButtonRelease) {
        m_pipette->hide();
    }
    return QDialog::eventFilter(watched, event);
}

void DialogColorPicker::pipetteTick()
{
    if (!isVisible()) {
        m_pipette->hide();
        m_pipetteTimer->stop();
        return;
    }
    if (!m_pipette->isVisible()) return;
    const QPoint pointer = m_pointer();
    if (pointer == m_lastPointer) return;
    m_lastPointer = pointer;
    m_screen = m_grab(pointer);
    m_pipette->setSample(m_screen);
    if (!m_screen.isNull()) onColorSelected(m_screen.pixelColor(0, 0));
    m_pipette->move(pointer - QPoint(m_pipette->width() / 2, m_pipette->height() / 2));
}
