#include "ModuleRtSet.h"

#include "NumberText.h"
#include "ToggleButton.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <cmath>

namespace {

// One ruler for the whole program.
QRect g_ruler = ModuleRtSet::kRuler;
double g_value = 0.5;

constexpr int kGrabMargin = 2;
constexpr int kRulerSpace = 76; // from the title row to below the ruler's numbers
constexpr int kTickTop = 75;
constexpr int kTickBottom = 90;
constexpr int kPointerTop = 66;
constexpr int kArrowHalfBase = 6;
const QColor kOffColor(0xB7, 0xB7, 0xB7);

// Float noise (0.57 + 0.005 is 0.57499999...) must not eat a step.
constexpr double kRoundingSlack = 1e-4;

const char* const kStyle = R"(
QLabel#labelTitle { color: #26262C; font-size: 15px; font-weight: 600; }
#FrameBt QLineEdit { border: 1px solid #E2E2E2; border-radius: 12px; background-color: #FFFFFF;
    min-height: 26px; color: #26262C; font-weight: 600; }
#FrameBt QPushButton { border: none; border-radius: 13px; background-color: #FFFFFF;
    color: #6329B6; min-width: 26px; max-width: 26px; min-height: 26px; font-size: 16px;
    font-weight: 700; padding: 0px; }
QLabel#labelHint { color: #9A9AA4; font-size: 12px; }
#FrameBt QPushButton:hover { background-color: #EFE7FB; }
#FrameBt QPushButton:disabled, #FrameBt QLineEdit:disabled { color: #B7B7B7; }
)";

} // namespace

ModuleRtSet::ModuleRtSet(QWidget* parent) : QFrame(parent)
{
    setStyleSheet(QLatin1String(kStyle));
    setMinimumSize(300, 160);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 12, 20, 12);
    auto* head = new QHBoxLayout;
    labelTitle = new QLabel(this);
    labelTitle->setObjectName(QStringLiteral("labelTitle"));
    checkBoxRTMode = new ToggleButton(this);
    checkBoxRTMode->setObjectName(QStringLiteral("checkBoxRTMode"));
    checkBoxRTMode->setText(QStringLiteral("ON"));
    checkBoxRTMode->setFixedSize(40, 20);
    checkBoxRTMode->setChecked(true);
    head->addWidget(labelTitle);
    head->addStretch(1);
    head->addWidget(checkBoxRTMode);
    layout->addLayout(head);
    layout->addSpacing(kRulerSpace); // the ruler is painted here

    frameBt = new QFrame(this);
    frameBt->setObjectName(QStringLiteral("FrameBt"));
    auto* buttons = new QHBoxLayout(frameBt);
    buttons->setContentsMargins(0, 0, 0, 0);
    pushButtonMinus = new QPushButton(QStringLiteral("−"), frameBt);
    pushButtonMinus->setObjectName(QStringLiteral("pushButtonMinus"));
    lineEdit = new QLineEdit(QStringLiteral("0.570 mm"), frameBt);
    lineEdit->setObjectName(QStringLiteral("lineEdit"));
    lineEdit->setMaxLength(10);
    lineEdit->setAlignment(Qt::AlignCenter);
    lineEdit->setFixedWidth(110);
    pushButtonPlug = new QPushButton(QStringLiteral("+"), frameBt);
    pushButtonPlug->setObjectName(QStringLiteral("pushButtonPlug"));
    buttons->addStretch(1);
    buttons->addWidget(pushButtonMinus);
    buttons->addWidget(lineEdit);
    buttons->addWidget(pushButtonPlug);
    buttons->addStretch(1);
    layout->addWidget(frameBt);
    layout->addStretch(1);
    labelHint = new QLabel(this);
    labelHint->setObjectName(QStringLiteral("labelHint"));
    labelHint->setWordWrap(true);
    layout->addWidget(labelHint);
    retranslate();

    for (QPushButton* button : {pushButtonMinus, pushButtonPlug}) {
        button->setAutoRepeat(true);
        button->setAutoRepeatInterval(kRepeatMs);
        button->setFocusPolicy(Qt::NoFocus);
        button->setCursor(Qt::PointingHandCursor);
    }
    connect(pushButtonMinus, &QPushButton::clicked, this, [this] { setValue(readText() - kStep); });
    connect(pushButtonPlug, &QPushButton::clicked, this, [this] { setValue(readText() + kStep); });
    connect(lineEdit, &QLineEdit::textEdited, this, &ModuleRtSet::onTextEdited);
    connect(checkBoxRTMode, &QCheckBox::clicked, this, [this](bool on) {
        pushButtonMinus->setEnabled(on);
        pushButtonPlug->setEnabled(on);
        lineEdit->setEnabled(on);
        update();
    });
    installEventFilter(this);
}

void ModuleRtSet::retranslate()
{
    labelHint->setText(tr("拖动指针或点按 − / + 调整，所有按键立即生效。"));
}

void ModuleRtSet::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QFrame::changeEvent(event);
}

void ModuleRtSet::setTitle(const QString& title)
{
    labelTitle->setText(title);
}

double ModuleRtSet::value()
{
    return g_value;
}

void ModuleRtSet::setValue(double v)
{
    v = std::floor(v * 1000.0 + kRoundingSlack);
    v = std::floor(v / 5) * 5 / 1000.0;
    g_value = std::clamp(v, kMinimum, kMaximum);
    lineEdit->setText(QString::asprintf("%.3f mm", g_value));
    emit onSetValue(float(g_value), 0);
    update();
}

double ModuleRtSet::readText()
{
    const double typed = NumberText::toDouble(lineEdit->text());
    if (typed < kMinimum || typed > kMaximum) {
        setValue(typed < kMinimum ? kMinimum : kMaximum);
        return g_value;
    }
    return typed;
}

void ModuleRtSet::onTextEdited()
{
    // A value in range is kept as typed, neither rounded nor sent.
    g_value = readText();
    update();
}

bool ModuleRtSet::onRuler(const QPointF& p) const
{
    return g_ruler.adjusted(-kGrabMargin, 0, kGrabMargin, 0).contains(p.toPoint());
}

double ModuleRtSet::valueAtX(qreal x) const
{
    return kMinimum + (kMaximum - kMinimum) * (x - g_ruler.left()) / g_ruler.width();
}

bool ModuleRtSet::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == this) {
        const auto type = event->type();
        if (type == QEvent::MouseButtonPress || type == QEvent::MouseMove) {
            const auto* mouse = static_cast<QMouseEvent*>(event);
            const bool start = type == QEvent::MouseButtonPress && checkBoxRTMode->isChecked();
            if ((start || dragging) && onRuler(mouse->position())) {
                dragging = true;
                setValue(valueAtX(mouse->position().x()));
                return true;
            }
        } else if (type == QEvent::MouseButtonRelease) {
            dragging = false;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void ModuleRtSet::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    g_ruler = kRuler;
    const bool on = checkBoxRTMode->isChecked();
    QPainter painter(this);
    const QColor ink = on ? QColor(Qt::black) : kOffColor;
    painter.setPen(QPen(ink, 1));
    painter.setBrush(on ? QBrush(Qt::black) : QBrush(kOffColor));
    const int left = g_ruler.left();
    const int width = g_ruler.width();
    for (int i = 0; i < kTicks; ++i) {
        const int x = int(left + i * (width / double(kTicks - 1)));
        painter.drawLine(x, kTickTop, x, kTickBottom);
    }
    // The box's value, as the user sees it while typing.
    const double shown = std::clamp(NumberText::toDouble(lineEdit->text()), kMinimum, kMaximum);
    const int x = int(left + (shown - kMinimum) * width / (kMaximum - kMinimum));
    painter.drawLine(x, kPointerTop, x, kTickBottom);
    const int top = g_ruler.top();
    const int tip = int(top + kArrowHalfBase * std::sqrt(3.0));
    painter.setRenderHint(QPainter::Antialiasing);
    const QPolygon arrow(
        {QPoint(x - kArrowHalfBase, top), QPoint(x + kArrowHalfBase, top), QPoint(x, tip)});
    painter.drawPolygon(arrow);
    painter.setPen(kOffColor);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    painter.setFont(small);
    const QRect under(left - 20, kTickBottom + 2, 40, 16);
    painter.drawText(under, Qt::AlignCenter, QStringLiteral("0.2"));
    painter.drawText(under.translated(width, 0), Qt::AlignCenter, QStringLiteral("2.5"));
}
