#include "EffectLevel.h"

#include "CustumSlider.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>

namespace {

const char* const kStyle = R"(
QLabel#labelTitle2 { color: #6329B6; font-weight: 600; }
QLabel#labelTitleL1, QLabel#labelTitleL2 { color: #9A9AA4; font-size: 12px; }
QSlider { min-height: 24px; }
QSlider::groove:horizontal { height: 6px; border-radius: 3px; background: #E2E2E8; }
QSlider::sub-page:horizontal { height: 6px; border-radius: 3px; background: #6329B6; }
QSlider::handle:horizontal { width: 14px; height: 14px; margin: -6px 0px; border-radius: 9px;
    background: #FFFFFF; border: 2px solid #6329B6; }
)";

} // namespace

EffectLevel::EffectLevel(const QString& sliderName, QWidget* parent) : QFrame(parent)
{
    setStyleSheet(QLatin1String(kStyle));
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(20, 14, 20, 14);
    layout->setVerticalSpacing(10);
    labelTitle1 = new QLabel(this);
    labelTitle1->setObjectName(QStringLiteral("labelTitle1"));
    labelTitle2 = new QLabel(this);
    labelTitle2->setObjectName(QStringLiteral("labelTitle2"));
    labelTitle2->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    slider = new CustumSlider(Qt::Horizontal, this);
    slider->setObjectName(sliderName);
    slider->setRange(0, kMaxLevel);
    slider->setSingleStep(1);
    slider->setPageStep(1);
    slider->setCursor(Qt::PointingHandCursor);
    labelTitleL1 = new QLabel(QStringLiteral("0%"), this);
    labelTitleL1->setObjectName(QStringLiteral("labelTitleL1"));
    labelTitleL2 = new QLabel(QStringLiteral("100%"), this);
    labelTitleL2->setObjectName(QStringLiteral("labelTitleL2"));
    labelTitleL2->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    layout->addWidget(labelTitle1, 0, 0);
    layout->addWidget(labelTitle2, 0, 1);
    layout->addWidget(slider, 1, 0, 1, 2);
    layout->addWidget(labelTitleL1, 2, 0);
    layout->addWidget(labelTitleL2, 2, 1);

    connect(slider, &QSlider::valueChanged, this, &EffectLevel::onValueChanged);
    echo = true; // the starting level is not the user's
    slider->setValue(1);
    echo = false;
}

int EffectLevel::level() const
{
    return slider->value();
}

void EffectLevel::onValueChanged(int value)
{
    labelTitle2->setText(QStringLiteral("%1%").arg(value * kPercentPerStep));
    if (!echo) report(value);
    echo = false;
}

void EffectLevel::setLevel(int value)
{
    // A value equal to the shown one changes nothing, so it must not leave the flag set for
    // the user's next move.
    if (value == slider->value()) return;
    echo = true;
    slider->setValue(value);
    echo = false; // a value the range clamped to the same level fired nothing either
}

void EffectLevel::retranslate()
{
    labelTitle1->setText(title());
}

void EffectLevel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QFrame::changeEvent(event);
}
