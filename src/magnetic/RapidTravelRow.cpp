#include "RapidTravelRow.h"

#include "Clock.h"
#include "CustumSlider.h"
#include "NumberText.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

RapidTravelRow::RapidTravelRow(int number, bool backwardIn, Clock* clock, QWidget* parent)
    : QFrame(parent), backward(backwardIn)
{
    const QString n = QString::number(number);
    if (!clock) clock = QtClock::shared();
    typingTimer = clock->createTimer([this] { takeTypedText(); }, true);

    labelTitle = new QLabel(this);
    labelTitle->setObjectName(QStringLiteral("labelTitleRT") + n);
    labelTitle->setProperty("role", QStringLiteral("rowTitle"));
    auto* low = new QLabel(QStringLiteral("0.005"), this);
    auto* high = new QLabel(QStringLiteral("2.000"), this);
    for (QLabel* end : {low, high})
        end->setProperty("role", QStringLiteral("rowEnd"));
    horizontalSlider = new CustumSlider(Qt::Horizontal, this);
    horizontalSlider->setObjectName(QStringLiteral("horizontalSlider") + n);
    horizontalSlider->setRange(kMinimum, kMaximum);
    horizontalSlider->setSingleStep(kStep);
    horizontalSlider->setCursor(Qt::PointingHandCursor);
    auto* minus = new QPushButton(QStringLiteral("−"), this);
    minus->setObjectName(QStringLiteral("pushButtonM") + n);
    auto* plus = new QPushButton(QStringLiteral("+"), this);
    plus->setObjectName(QStringLiteral("pushButtonP") + n);
    lineEditValue = new QLineEdit(this);
    lineEditValue->setObjectName(QStringLiteral("lineEditValue") + n);
    lineEditValue->setAlignment(Qt::AlignCenter);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(8);
    layout->setVerticalSpacing(2);
    layout->addWidget(labelTitle, 0, 0, 1, 6);
    layout->addWidget(low, 1, 0);
    layout->addWidget(horizontalSlider, 1, 1);
    layout->addWidget(high, 1, 2);
    layout->addWidget(minus, 1, 3);
    layout->addWidget(lineEditValue, 1, 4);
    layout->addWidget(plus, 1, 5);
    layout->setColumnStretch(1, 1);

    for (auto [button, step] : {std::pair{minus, -kStep}, std::pair{plus, kStep}}) {
        button->setAutoRepeat(true);
        button->setAutoRepeatInterval(kRepeatMs);
        button->setCursor(Qt::PointingHandCursor);
        button->setFocusPolicy(Qt::NoFocus);
        connect(button, &QPushButton::clicked, this,
                [this, step] { horizontalSlider->setValue(horizontalSlider->value() + step); });
    }
    connect(horizontalSlider, &QSlider::valueChanged, this, &RapidTravelRow::showValue);
    // Only what the user types is parsed: the box's own display must not re-arm the parse, or
    // the backward row would flip between its two readings for ever.
    connect(lineEditValue, &QLineEdit::textEdited, this, [this] {
        typingTimer->stop();
        typingTimer->start(kTypingQuietMs);
    });
}

RapidTravelRow::~RapidTravelRow() = default;

void RapidTravelRow::setTitle(const QString& title)
{
    labelTitle->setText(title);
}

void RapidTravelRow::setSliderValue(int value)
{
    horizontalSlider->setValue(value);
    showValue(horizontalSlider->value()); // also when the value didn't change
}

float RapidTravelRow::value() const
{
    return float(NumberText::toDouble(lineEditValue->text()));
}

void RapidTravelRow::showValue(int value)
{
    const double millimetres = backward ? kBackwardTop - value / 1000.0 : value / 1000.0;
    lineEditValue->setText(QString::asprintf("%.03f", millimetres));
}

void RapidTravelRow::takeTypedText()
{
    typingTimer->stop();
    const int typed = int(NumberText::toDouble(lineEditValue->text()) * 1000.0);
    // The box then shows what the slider took, also when the slider stood there already.
    setSliderValue(std::clamp(typed, kTypedFloor, kTypedCap));
}
