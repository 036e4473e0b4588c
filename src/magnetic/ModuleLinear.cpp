#include "ModuleLinear.h"

#include "CustumSlider.h"
#include "NumberText.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int kSliderHeight = 170;

// The press side in orange, the release side in cyan; the filled part is the travel.
const char* const kStyle = R"(
QLabel[pane="title"] { color: #5C5C66; font-size: 13px; }
QLineEdit { border: 1px solid #E2E2E2; border-radius: 10px; background-color: #FFFFFF;
    min-height: 24px; min-width: 54px; max-width: 54px; color: #26262C; font-weight: 600;
    padding: 0px; }
QLineEdit:disabled, QPushButton:disabled { color: #B7B7B7; }
QPushButton { border: none; border-radius: 12px; background-color: #FFFFFF; color: #6329B6;
    min-width: 24px; max-width: 24px; min-height: 24px; max-height: 24px; font-size: 10px;
    padding: 0px; }
QPushButton:hover { background-color: #EFE7FB; }
QSlider::groove:vertical { width: 8px; border-radius: 4px; background: #E2E2E8; }
QSlider::handle:vertical { height: 18px; width: 18px; margin: 0px -5px; border-radius: 9px;
    background: #FFFFFF; border: 2px solid #6329B6; }
QSlider#verticalSlider1::add-page:vertical { border-radius: 4px; background: #E2E2E8; }
QSlider#verticalSlider1::sub-page:vertical { border-radius: 4px; background: #FFA73C; }
QSlider#verticalSlider2::add-page:vertical { border-radius: 4px; background: #39E1DC; }
QSlider#verticalSlider2::sub-page:vertical { border-radius: 4px; background: #E2E2E8; }
QSlider:disabled::handle:vertical { border-color: #B7B7B7; }
QSlider#verticalSlider1:disabled::sub-page:vertical,
QSlider#verticalSlider2:disabled::add-page:vertical { background: #D0D0D6; }
)";

} // namespace

ModuleLinear::ModuleLinear(QWidget* parent) : QFrame(parent)
{
    setStyleSheet(QLatin1String(kStyle));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->setSpacing(16);
    for (Side side : {Left, Right}) {
        panes[side] = buildPane(side);
        layout->addWidget(panes[side].pan);
    }
    retranslate();
    panes[Left].slider->setValue(kLeftDefault);
    panes[Right].slider->setValue(kRightDefault);
}

ModuleLinear::Pane ModuleLinear::buildPane(Side side)
{
    const QString n = QString::number(side + 1);
    Pane p;
    p.pan = new QFrame(this);
    p.pan->setObjectName(side == Left ? QStringLiteral("leftPan") : QStringLiteral("rightPan"));
    auto* column = new QVBoxLayout(p.pan);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    p.title = new QLabel(p.pan);
    p.title->setObjectName(QStringLiteral("labelTitleS") + n);
    p.title->setProperty("pane", QStringLiteral("title"));
    p.title->setAlignment(Qt::AlignCenter);
    p.slider = new CustumSlider(Qt::Vertical, p.pan);
    p.slider->setObjectName(QStringLiteral("verticalSlider") + n);
    p.slider->setRange(0, kSliderMax);
    p.slider->setSingleStep(kRightStep);
    p.slider->setFixedHeight(kSliderHeight);
    p.slider->setCursor(Qt::PointingHandCursor);
    p.slider->installEventFilter(this);
    // The arrows move the handle their way: down lowers the slider's value.
    p.minus = new QPushButton(QStringLiteral("▼"), p.pan);
    p.minus->setObjectName(QStringLiteral("pushButtonM") + n);
    p.edit = new QLineEdit(p.pan);
    p.edit->setObjectName(QStringLiteral("lineEditValue") + n);
    p.edit->setAlignment(Qt::AlignCenter);
    p.plus = new QPushButton(QStringLiteral("▲"), p.pan);
    p.plus->setObjectName(QStringLiteral("pushButtonP") + n);
    auto* row = new QHBoxLayout;
    row->setSpacing(4);
    row->addWidget(p.minus);
    row->addWidget(p.edit);
    row->addWidget(p.plus);
    column->addWidget(p.title);
    column->addWidget(p.slider, 0, Qt::AlignHCenter);
    column->addLayout(row);

    const int step = side == Left ? kLeftStep : kRightStep;
    for (QPushButton* button : {p.minus, p.plus}) {
        button->setAutoRepeat(true);
        button->setAutoRepeatInterval(kRepeatMs);
        button->setCursor(Qt::PointingHandCursor);
        button->setFocusPolicy(Qt::NoFocus);
    }
    CustumSlider* slider = p.slider;
    connect(p.minus, &QPushButton::clicked, this,
            [slider, step] { slider->setValue(slider->value() - step); });
    connect(p.plus, &QPushButton::clicked, this,
            [slider, step] { slider->setValue(slider->value() + step); });
    connect(p.slider, &QSlider::valueChanged, this,
            [this, side](int value) { onSliderChanged(side, value); });
    connect(p.edit, &QLineEdit::textChanged, this,
            [this, side](const QString& text) { onTextChanged(side, text); });
    return p;
}

QString ModuleLinear::textOf(Side side, int value)
{
    if (side == Left) // tenths of a millimetre, 0 at the slider's top
        return QString::asprintf("%.02f", (40 - value / 100) * 100 / 1000.0);
    return QString::asprintf("%.03f", (value / 5) * 5 / 1000.0);
}

void ModuleLinear::onSliderChanged(Side side, int value)
{
    QLineEdit* edit = panes[side].edit;
    edit->blockSignals(true);
    edit->setText(textOf(side, value));
    // Deliberate: the right pane leaves its box's signals blocked, so after the first move
    // typing there no longer moves the slider.
    if (side == Left) edit->blockSignals(false);
    emit onSetValue(edit->text().toFloat(), side);
}

void ModuleLinear::onTextChanged(Side side, const QString& text)
{
    const int value = std::clamp(int(NumberText::toDouble(text.trimmed()) * 1000.0), 0, kSliderMax);
    CustumSlider* slider = panes[side].slider;
    slider->blockSignals(true);
    slider->setValue(side == Left ? kSliderMax - value : value);
    // Deliberate, as above: the right pane's slider stays silent after the first typed entry.
    if (side == Left) slider->blockSignals(false);
}

void ModuleLinear::setPaneEnabled(bool left, bool enabled)
{
    const Pane& p = panes[left ? Left : Right];
    p.pan->setEnabled(enabled);
    p.slider->setEnabled(enabled);
}

float ModuleLinear::paneValue(bool left) const
{
    return float(NumberText::toDouble(panes[left ? Left : Right].edit->text()));
}

void ModuleLinear::setPaneTitles(const QString& left, const QString& right)
{
    customTitles = true;
    panes[Left].title->setText(left + QStringLiteral("(mm)"));
    panes[Right].title->setText(right + QStringLiteral("(mm)"));
}

void ModuleLinear::retranslate()
{
    if (customTitles) return; // the owner sets them again in its own language change
    panes[Left].title->setText(tr("按下(mm)"));
    panes[Right].title->setText(tr("抬起(mm)"));
}

void ModuleLinear::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QFrame::changeEvent(event);
}

bool ModuleLinear::eventFilter(QObject* watched, QEvent* event)
{
    // A release anywhere on the groove puts the handle there.
    if (event->type() == QEvent::MouseButtonRelease) {
        for (const Pane& p : panes) {
            if (watched != p.slider || !p.slider->isEnabled()) continue;
            const auto* mouse = static_cast<QMouseEvent*>(event);
            p.slider->setValue(p.slider->valueAt(mouse->position().toPoint()));
        }
    }
    return QFrame::eventFilter(watched, event);
}
