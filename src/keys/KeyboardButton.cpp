#include "KeyboardButton.h"

#include "Clock.h"
#include "KeyboardLayout.h"
#include "keySetTooltip.h"

#include <QPainter>

namespace {

constexpr int kClearAfterBuildMs = 100;
constexpr int kFillAlpha = 160;
constexpr int kFillRadius = 14;
constexpr int kCaptionPixels = 9;
constexpr int kCaptionGap = 4; // the captions' edges stand this far past the key's middle
constexpr qreal kCaptionSpacing = -0.6;
const QString kShapeMark = QStringLiteral("[==set==]");

// Shared by every key; built once.
const QString& styleText(bool modified)
{
    static const QString base = QStringLiteral(
        "QPushButton { color: black; border: 1px solid #EAEAEA; background-color: #FBFBFB; "
        "font-weight: 600; font-size: 13px; border-radius: 10px; padding: 0px; [==set==] }"
        "QPushButton:hover { background-color: #D8D8D8; }"
        "QPushButton:pressed { background-color: #D8D8D8; color: white; }"
        "QPushButton:checked { background-color: #3F3F3F; color: white; }"
        "QPushButton:disabled { background-color: #EAEAEA; color: gray; }");
    static const QString modifiedText = QStringLiteral(
        "QPushButton { color: black; border: 1px solid #D8BDFF; background-color: #FAF7FF; "
        "font-weight: 600; font-size: 13px; border-radius: 10px; padding: 0px; [==set==] }"
        "QPushButton:hover { background-color: #D8D8D8; }"
        "QPushButton:pressed { background-color: #D8D8D8; color: white; }"
        "QPushButton:checked { background-color: #D8BDFF; color: white; }"
        "QPushButton:disabled { background-color: #EAEAEA; color: gray; }");
    return modified ? modifiedText : base;
}

QString withShape(const QString& style, const QString& shape)
{
    QString text = style;
    const qsizetype at = text.indexOf(kShapeMark);
    if (at >= 0) text.replace(at, kShapeMark.size(), shape);
    return text;
}

} // namespace

KeyboardButton::KeyboardButton(quint8 code, Clock* clock, QWidget* parent) : QPushButton(parent)
{
    setObjectName(nameOf(code));
    if (!clock) clock = QtClock::shared();
    clock->singleShot(kClearAfterBuildMs, this, [this] { setKeyContent(QString(), QString()); });
}

KeyboardButton::~KeyboardButton() = default;

QString KeyboardButton::nameOf(quint8 code)
{
    return QStringLiteral("pushButton_Hid%1").arg(code, 3, 10, QLatin1Char('0'));
}

quint8 KeyboardButton::codeOf(const QObject* button)
{
    if (!button) return 0;
    return quint8(button->objectName().right(3).toUInt());
}

QString KeyboardButton::baseStyle()
{
    return styleText(false);
}

QString KeyboardButton::modifiedStyle()
{
    return styleText(true);
}

QString KeyboardButton::shapeOf(const QString& objectName)
{
    if (objectName.contains(QLatin1String("_Hid234")))
        return QStringLiteral("border-radius: 0px; border-top-left-radius: 20px !important; "
                              "border-bottom-left-radius: 20px !important;");
    if (objectName.contains(QLatin1String("_Hid233")))
        return QStringLiteral("border-radius: 0px; border-top-right-radius: 20px !important; "
                              "border-bottom-right-radius: 20px !important;");
    return QString();
}

void KeyboardButton::setKeyContent(const QString& title, const QString& body)
{
    const QString shape = shapeOf(objectName());
    if (!title.isEmpty() && !body.isEmpty()) {
        if (!tooltip) {
            tooltip = new keySetTooltip(this);
            firstShow = true;
        }
        tooltip->setTexts(title, body);
        applyStyle(withShape(modifiedStyle(), shape));
        if (underMouse()) placeBubble();
        return;
    }
    applyStyle(withShape(baseStyle(), shape));
    delete tooltip;
    tooltip = nullptr;
}

void KeyboardButton::applyStyle(const QString& style)
{
    // A refresh redraws every key after each write; an unchanged sheet is not parsed again.
    if (styleSheet() != style) setStyleSheet(style);
}

void KeyboardButton::setDisplayMode(quint8 displayMode)
{
    mode = displayMode;
    if (mode == ColouredBorder) applyBorderStyle();
    update();
}

void KeyboardButton::setFillColor(const QColor& colour)
{
    fillColor = colour;
    filled = colour.isValid();
    update();
}

void KeyboardButton::setBorderColor(const QColor& colour)
{
    borderColor = colour;
    applyBorderStyle();
}

QString KeyboardButton::borderColourText(const QColor& colour)
{
    // Deliberately blue first: red and blue change places in the colour text, and the pages
    // that colour keys count on that.
    return QString::asprintf("#%02X%02X%02X", colour.blue(), colour.green(), colour.red());
}

void KeyboardButton::applyBorderStyle()
{
    const QString text = borderColourText(borderColor);
    applyStyle(QStringLiteral("QPushButton { color: %1; border: 2px solid %1; "
                              "background-color: #FBFBFB; padding: 0px; font-size: 14px; "
                              "border-radius: 10px; }")
                   .arg(text));
}

void KeyboardButton::setValues2(float upper, float lower)
{
    value1 = QString::asprintf("%.2f", double(upper));
    value2 = QString::asprintf("%.3f", double(lower));
    update();
}

void KeyboardButton::setValues3(float left, float right)
{
    value3 = QString::asprintf("%.3f", double(left));
    value4 = QString::asprintf("%.3f", double(right));
    update();
}

void KeyboardButton::setValues4(float upperRight, float lowerRight, bool extra)
{
    value5 = QString::asprintf("%.3f", double(upperRight));
    value6 = QString::asprintf("%.3f", double(lowerRight));
    hasExtra = extra;
    update();
}

QStringList KeyboardButton::valueTexts() const
{
    return {value1, value2, value3, value4, value5, value6};
}

QString KeyboardButton::paintedText() const
{
    if (const char* arrow = KeyboardLayout::arrowOf(code())) return QString::fromUtf8(arrow);
    return text().trimmed().replace(QLatin1String("&&"), QLatin1String("&"));
}

void KeyboardButton::paintEvent(QPaintEvent* event)
{
    if (filled) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor colour = fillColor;
        colour.setAlpha(kFillAlpha);
        painter.setPen(Qt::white);
        painter.setBrush(colour);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kFillRadius,
                                kFillRadius);
        QFont bold = font();
        bold.setWeight(QFont::Bold);
        painter.setFont(bold);
        painter.drawText(rect(), Qt::AlignCenter, paintedText());
        return;
    }
    QPushButton::paintEvent(event);
    if (mode != TwoValues && mode != CornerValues) return;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont small = font();
    small.setWeight(QFont::Normal);
    small.setPixelSize(kCaptionPixels);
    // Two values of five characters share a 48-pixel key's lower edge: the figures are set
    // narrow so that they don't run into each other.
    small.setStretch(QFont::Condensed);
    small.setLetterSpacing(QFont::AbsoluteSpacing, kCaptionSpacing);
    painter.setFont(small);
    const int middle = height() / 2;
    const QRect upper(3, 0, width() - 6, middle - kCaptionGap);
    const QRect lower(3, middle + kCaptionGap, width() - 6, height() - middle - kCaptionGap);
    if (mode == TwoValues) {
        painter.setPen(Qt::magenta);
        painter.drawText(upper, Qt::AlignHCenter | Qt::AlignTop, value1);
        painter.setPen(Qt::darkCyan);
        painter.drawText(lower, Qt::AlignHCenter | Qt::AlignBottom, value2);
        return;
    }
    painter.setPen(Qt::magenta);
    painter.drawText(lower, Qt::AlignLeft | Qt::AlignBottom, value3);
    painter.setPen(Qt::darkCyan);
    if (hasExtra) {
        painter.drawText(upper, Qt::AlignRight | Qt::AlignTop, value5);
        painter.drawText(lower, Qt::AlignRight | Qt::AlignBottom, value6);
    } else {
        painter.drawText(lower, Qt::AlignRight | Qt::AlignBottom, value4);
    }
}

void KeyboardButton::enterEvent(QEnterEvent* event)
{
    if (tooltip) placeBubble();
    QPushButton::enterEvent(event);
}

void KeyboardButton::leaveEvent(QEvent* event)
{
    if (tooltip) tooltip->hide();
    QPushButton::leaveEvent(event);
}

void KeyboardButton::placeBubble()
{
    if (firstShow) {
        // A window has its real size only once it has been shown.
        tooltip->show();
        tooltip->hide();
        firstShow = false;
    }
    const QPoint at(width() / 2 - tooltip->width() / 2 - 5, -tooltip->height());
    tooltip->move(mapToGlobal(at));
    tooltip->show();
    tooltip->raise();
}
