#include "MagicTravelPage.h"

#include "ModuleLinear.h"
#include "RapidTravelRow.h"
#include "ToggleButton.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int kRowOneStart = 2050; // the slider's range takes it down to 2000
constexpr int kRowTwoStart = 1950; // shows 0.750 mm, the row being backward

// A switch with its text before it.
QHBoxLayout* switchLine(QLabel* text, ToggleButton* toggle)
{
    auto* line = new QHBoxLayout;
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(10);
    line->addWidget(text);
    line->addStretch(1);
    line->addWidget(toggle);
    return line;
}

} // namespace

MagicTravelPage::MagicTravelPage(Clock* clock, QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("page0"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 16, 24, 16);
    layout->setSpacing(10);

    auto* head = new QHBoxLayout;
    labelTitle0 = new QLabel(this);
    labelTitle0->setObjectName(QStringLiteral("labelTitle0"));
    labelTitle0->setProperty("role", QStringLiteral("pageTitle"));
    labelSelectRTKey = new QLabel(this);
    labelSelectRTKey->setObjectName(QStringLiteral("labelSelectRTKey"));
    labelSelectRTKey->setProperty("role", QStringLiteral("count"));
    pushButtonSetRT = new QPushButton(this);
    pushButtonSetRT->setObjectName(QStringLiteral("pushButtonSetRT"));
    pushButtonSetRT->setProperty("role", QStringLiteral("apply"));
    pushButtonSetRT->setCursor(Qt::PointingHandCursor);
    pushButtonSetRT->setFocusPolicy(Qt::NoFocus);
    head->addWidget(labelTitle0);
    head->addSpacing(16);
    head->addWidget(labelSelectRTKey);
    head->addStretch(1);
    head->addWidget(pushButtonSetRT);
    layout->addLayout(head);

    auto* cards = new QHBoxLayout;
    cards->setSpacing(16);
    cards->addWidget(buildActuation());
    cards->addWidget(buildRapidTrigger(clock), 1);
    layout->addLayout(cards, 1);
    retranslate();

    connect(checkBoxUnpress, &QCheckBox::clicked, this,
            [this](bool on) { frameLinear->setPaneEnabled(false, on); });
    connect(checkBoxRTPress, &QCheckBox::clicked, frame2, &QWidget::setEnabled);
    connect(checkBoxFullRT, &QCheckBox::clicked, this, &MagicTravelPage::onFullTravelClicked);

    // As the page has always started: the re-press switch clicked on, then the full-travel
    // switch (on in the form) clicked off, which turns the first off again.
    checkBoxFullRT->setChecked(true);
    checkBoxRTPress->click();
    checkBoxFullRT->click();
    frameLinear->setPaneEnabled(false, false);
}

QWidget* MagicTravelPage::buildActuation()
{
    auto* card = new QFrame(this);
    card->setObjectName(QStringLiteral("frameActuation"));
    card->setProperty("role", QStringLiteral("card"));
    card->setFixedWidth(300);
    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(18, 12, 18, 6);
    layout->setSpacing(0);
    labelUnpress = new QLabel(card);
    labelUnpress->setObjectName(QStringLiteral("labelUnpress"));
    checkBoxUnpress = new ToggleButton(card);
    checkBoxUnpress->setObjectName(QStringLiteral("checkBoxUnpress"));
    checkBoxUnpress->setFocusPolicy(Qt::NoFocus);
    frameLinear = new ModuleLinear(card);
    frameLinear->setObjectName(QStringLiteral("frameLinear"));
    layout->addLayout(switchLine(labelUnpress, checkBoxUnpress));
    layout->addWidget(frameLinear, 1);
    return card;
}

QWidget* MagicTravelPage::buildRapidTrigger(Clock* clock)
{
    auto* card = new QFrame(this);
    card->setObjectName(QStringLiteral("frameRapid"));
    card->setProperty("role", QStringLiteral("card"));
    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(18, 12, 18, 12);
    layout->setSpacing(6);

    labelFullRT = new QLabel(card);
    labelFullRT->setObjectName(QStringLiteral("labelFullRT"));
    labelFullRT->setProperty("role", QStringLiteral("cardTitle"));
    checkBoxFullRT = new ToggleButton(card);
    checkBoxFullRT->setObjectName(QStringLiteral("checkBoxFullRT"));
    checkBoxFullRT->setFocusPolicy(Qt::NoFocus);
    label_7 = new QLabel(card);
    label_7->setObjectName(QStringLiteral("label_7"));
    label_7->setProperty("role", QStringLiteral("note"));

    frame0 = new QFrame(card);
    frame0->setObjectName(QStringLiteral("frame0"));
    labelRTPress = new QLabel(frame0);
    labelRTPress->setObjectName(QStringLiteral("labelRTPress"));
    checkBoxRTPress = new ToggleButton(frame0);
    checkBoxRTPress->setObjectName(QStringLiteral("checkBoxRTPress"));
    checkBoxRTPress->setFocusPolicy(Qt::NoFocus);
    frame0->setLayout(switchLine(labelRTPress, checkBoxRTPress));

    frame1 = new QFrame(card);
    frame1->setObjectName(QStringLiteral("frame1"));
    frame2 = new QFrame(card);
    frame2->setObjectName(QStringLiteral("frame2"));
    row1 = new RapidTravelRow(1, false, clock, frame1);
    row2 = new RapidTravelRow(2, true, clock, frame2);
    for (auto [frame, row] : {std::pair{frame1, row1}, std::pair{frame2, row2}}) {
        auto* holder = new QVBoxLayout(frame);
        holder->setContentsMargins(0, 0, 0, 0);
        holder->addWidget(row);
    }
    row1->setSliderValue(kRowOneStart);
    row2->setSliderValue(kRowTwoStart);

    layout->addLayout(switchLine(labelFullRT, checkBoxFullRT));
    layout->addWidget(label_7);
    layout->addWidget(frame0);
    layout->addWidget(frame1);
    layout->addWidget(frame2);
    layout->addStretch(1);
    return card;
}

void MagicTravelPage::onFullTravelClicked(bool on)
{
    // With full-travel rapid trigger on, press and release actuation can't be set apart.
    frame0->setEnabled(on);
    frame1->setEnabled(on);
    frame2->setEnabled(false);
    frameLinear->setPaneEnabled(false, false);
    checkBoxRTPress->setChecked(false);
    checkBoxUnpress->setChecked(false);
    checkBoxUnpress->setEnabled(!on);
}

MagicTravelPage::Values MagicTravelPage::values() const
{
    Values v;
    v.press = frameLinear->paneValue(true);
    v.release = checkBoxUnpress->isChecked() ? frameLinear->paneValue(false) : v.press;
    v.rapidPress = row1->value();
    v.rapidRelease = checkBoxRTPress->isChecked() ? row2->value() : v.rapidPress;
    v.fullTravel = checkBoxFullRT->isChecked();
    return v;
}

void MagicTravelPage::setSelectionText(const QString& text)
{
    labelSelectRTKey->setText(text);
}

void MagicTravelPage::retranslate()
{
    labelTitle0->setText(tr("行程设置"));
    pushButtonSetRT->setText(tr("设置"));
    labelUnpress->setText(tr("单独设置按下抬起触发行程："));
    labelFullRT->setText(tr("全程连续快速触发（RT）"));
    label_7->setText(tr("启用时，快速触发在您完全松开按键时才会终止。") + u'\n' +
                     tr("禁用时，松开按键到轴体触发行程后终止快速触发"));
    labelRTPress->setText(tr("单独设置按键再次按下触发和松开重置行程"));
    row1->setTitle(tr("再次按下按键触发所需的行程(mm)"));
    row2->setTitle(tr("松开按键重置所需的行程(mm)"));
}

void MagicTravelPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QWidget::changeEvent(event);
}
