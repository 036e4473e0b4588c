#include "ModuleDKSAdjust.h"

#include "Clock.h"
#include "CustumSlider.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr QSize kSize{206, 304};
constexpr int kSliderWidth = 40;
constexpr int kSliderLeastHeight = 120;
constexpr double kPerMillimetre = 1000.0;
constexpr float kPerMillimetreF = 1000.0f;

const char* const kStyle = R"(
QFrame#DKSAdjust{background-color:#F6F6F6; border-radius:20px; min-width:200px; min-height:240px;margin:20px;}
QLabel#labelTitleS1 { color: #1A1A1A; font-size: 14px; font-weight: 600; }
QPushButton#pushButtonCancel { background: transparent; color: #8A8A8A; border: none;
    font-size: 16px; padding: 0px; }
QPushButton#pushButtonCancel:hover { color: #6329B6; }
QPushButton#pushButtonM1, QPushButton#pushButtonP1 { background-color: #FFFFFF; color: #6329B6;
    border: 1px solid #E2E2E2; border-radius: 12px; font-size: 16px; font-weight: 600;
    padding: 0px; }
QPushButton#pushButtonM1:hover, QPushButton#pushButtonP1:hover { border-color: #6329B6; }
QLineEdit#lineEditValue1 { background-color: #FFFFFF; border: 1px solid #E2E2E2;
    border-radius: 8px; color: #1A1A1A; font-size: 13px; }
QPushButton#pushButtonOK { background-color: #6329B6; color: #FFFFFF; border: none;
    border-radius: 15px; font-size: 13px; padding: 0px; }
QPushButton#pushButtonOK:hover { background-color: #7A42CC; }
QSlider::groove:vertical { width: 6px; border-radius: 3px; background: #E6E1EE; }
QSlider::add-page:vertical { width: 6px; border-radius: 3px; background: #6329B6; }
QSlider::sub-page:vertical { width: 6px; border-radius: 3px; background: #E6E1EE; }
QSlider::handle:vertical { width: 18px; height: 18px; margin: 0px -6px; border-radius: 9px;
    background: #FFFFFF; border: 2px solid #6329B6; }
)";

} // namespace

ModuleDKSAdjust::ModuleDKSAdjust(Clock* clockIn, QWidget* parent)
    : QFrame(parent), labelTitleS1(new QLabel(this)), pushButtonCancel(new QPushButton(this)),
      verticalSlider1(new CustumSlider(Qt::Vertical, this)), pushButtonM1(new QPushButton(this)),
      lineEditValue1(new QLineEdit(this)), pushButtonP1(new QPushButton(this)),
      pushButtonOK(new QPushButton(this))
{
    Clock* clock = clockIn ? clockIn : QtClock::shared();
    setObjectName(QStringLiteral("DKSAdjust"));
    setFixedSize(kSize);
    setStyleSheet(QLatin1String(kStyle));
    labelTitleS1->setObjectName(QStringLiteral("labelTitleS1"));
    pushButtonCancel->setObjectName(QStringLiteral("pushButtonCancel"));
    pushButtonCancel->setText(QStringLiteral("✕"));
    pushButtonCancel->setFixedSize(24, 24);
    verticalSlider1->setObjectName(QStringLiteral("verticalSlider1"));
    verticalSlider1->setRange(0, kMaximum);
    verticalSlider1->setSingleStep(kStep);
    verticalSlider1->setPageStep(kPageStep);
    verticalSlider1->setFixedWidth(kSliderWidth);
    verticalSlider1->setMinimumHeight(kSliderLeastHeight);
    verticalSlider1->setCursor(Qt::PointingHandCursor);
    pushButtonM1->setObjectName(QStringLiteral("pushButtonM1"));
    pushButtonM1->setText(QStringLiteral("-"));
    pushButtonP1->setObjectName(QStringLiteral("pushButtonP1"));
    pushButtonP1->setText(QStringLiteral("+"));
    for (QPushButton* button : {pushButtonM1, pushButtonP1}) {
        button->setFixedSize(24, 24);
        button->setAutoRepeat(true);
        button->setAutoRepeatInterval(kRepeatMs);
    }
    lineEditValue1->setObjectName(QStringLiteral("lineEditValue1"));
    lineEditValue1->setAlignment(Qt::AlignCenter);
    lineEditValue1->setFixedSize(64, 26);
    pushButtonOK->setObjectName(QStringLiteral("pushButtonOK"));
    pushButtonOK->setFixedSize(104, 30);
    for (QPushButton* button : {pushButtonCancel, pushButtonM1, pushButtonP1, pushButtonOK}) {
        button->setCursor(Qt::PointingHandCursor);
        button->setFocusPolicy(Qt::NoFocus);
    }

    // On top of the style's 20 pixel margin, which the contents already stand inside.
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 8, 8, 12);
    layout->setSpacing(10);
    auto* top = new QHBoxLayout();
    top->addWidget(labelTitleS1);
    top->addStretch(1);
    top->addWidget(pushButtonCancel);
    layout->addLayout(top);
    layout->addWidget(verticalSlider1, 1, Qt::AlignHCenter);
    auto* row = new QHBoxLayout();
    row->setSpacing(6);
    row->addWidget(pushButtonM1);
    row->addWidget(lineEditValue1);
    row->addWidget(pushButtonP1);
    layout->addLayout(row);
    layout->addWidget(pushButtonOK, 0, Qt::AlignHCenter);
    retranslate();

    textDelay = clock->createTimer([this] { takeText(); }, true);
    connect(verticalSlider1, &QSlider::valueChanged, this, &ModuleDKSAdjust::onSliderValue);
    connect(lineEditValue1, &QLineEdit::textChanged, this, [this] {
        if (!sliderWriting) textDelay->start(kTextDelayMs);
    });
    connect(pushButtonM1, &QPushButton::clicked, this,
            [this] { verticalSlider1->setValue(verticalSlider1->value() - kStep); });
    connect(pushButtonP1, &QPushButton::clicked, this,
            [this] { verticalSlider1->setValue(verticalSlider1->value() + kStep); });
    connect(pushButtonOK, &QPushButton::clicked, this, [this] {
        emit onValueSave(lineEditValue1->text().trimmed());
        hide();
    });
    connect(pushButtonCancel, &QPushButton::clicked, this, &QWidget::hide);
    verticalSlider1->setValue(kInitial);
}

ModuleDKSAdjust::~ModuleDKSAdjust() = default;

void ModuleDKSAdjust::setValueText(const QString& text)
{
    lineEditValue1->setText(text);
}

QString ModuleDKSAdjust::valueText() const
{
    return lineEditValue1->text();
}

int ModuleDKSAdjust::value() const
{
    return verticalSlider1->value();
}

void ModuleDKSAdjust::onSliderValue(int value)
{
    // The slider's own text would only come back as the same value, or one less where the
    // thousandths don't fall on a float exactly.
    sliderWriting = true;
    lineEditValue1->setText(QString::asprintf("%.03f", value / kPerMillimetre));
    sliderWriting = false;
}

void ModuleDKSAdjust::takeText()
{
    // Deliberate: the number is the whole text as the float parser reads it, so a unit typed
    // after it ("1.5 mm") reads as 0. Single precision throughout: "0.7" is 700, not 699.
    const int value = int(lineEditValue1->text().toFloat() * kPerMillimetreF);
    verticalSlider1->setValue(std::clamp(value, 0, kMaximum));
}

void ModuleDKSAdjust::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QFrame::changeEvent(event);
}

void ModuleDKSAdjust::retranslate()
{
    labelTitleS1->setText(tr("按下(mm)"));
    pushButtonOK->setText(tr("保存"));
}
