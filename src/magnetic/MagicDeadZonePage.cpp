#include "MagicDeadZonePage.h"

#include "ModuleLinear.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

MagicDeadZonePage::MagicDeadZonePage(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("page1"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 16, 24, 16);
    layout->setSpacing(10);

    auto* head = new QHBoxLayout;
    labelTitle2 = new QLabel(this);
    labelTitle2->setObjectName(QStringLiteral("labelTitle2"));
    labelTitle2->setProperty("role", QStringLiteral("pageTitle"));
    labelSelectDZKey = new QLabel(this);
    labelSelectDZKey->setObjectName(QStringLiteral("labelSelectDZKey"));
    labelSelectDZKey->setProperty("role", QStringLiteral("count"));
    pushButtonSetDeathzone = new QPushButton(this);
    pushButtonSetDeathzone->setObjectName(QStringLiteral("pushButtonSetDeathzone"));
    pushButtonSetDeathzone->setProperty("role", QStringLiteral("apply"));
    pushButtonSetDeathzone->setCursor(Qt::PointingHandCursor);
    pushButtonSetDeathzone->setFocusPolicy(Qt::NoFocus);
    head->addWidget(labelTitle2);
    head->addSpacing(16);
    head->addWidget(labelSelectDZKey);
    head->addStretch(1);
    head->addWidget(pushButtonSetDeathzone);
    layout->addLayout(head);

    auto* cards = new QHBoxLayout;
    cards->setSpacing(16);
    auto* controls = new QFrame(this);
    controls->setObjectName(QStringLiteral("frameDeadControls"));
    controls->setProperty("role", QStringLiteral("card"));
    controls->setFixedWidth(300);
    auto* controlsLayout = new QVBoxLayout(controls);
    controlsLayout->setContentsMargins(18, 8, 18, 6);
    frameDead = new ModuleLinear(controls);
    frameDead->setObjectName(QStringLiteral("frameDead"));
    controlsLayout->addWidget(frameDead);

    auto* about = new QFrame(this);
    about->setObjectName(QStringLiteral("frameDeadAbout"));
    about->setProperty("role", QStringLiteral("card"));
    auto* aboutLayout = new QVBoxLayout(about);
    aboutLayout->setContentsMargins(18, 14, 18, 14);
    aboutLayout->setSpacing(8);
    labelDeathzone = new QLabel(about);
    labelDeathzone->setObjectName(QStringLiteral("labelDeathzone"));
    labelDeathzone->setProperty("role", QStringLiteral("cardTitle"));
    labelDeathzoneNote = new QLabel(about);
    labelDeathzoneNote->setObjectName(QStringLiteral("labelDeathzoneNote"));
    labelDeathzoneNote->setProperty("role", QStringLiteral("note"));
    labelDeathzoneNote->setWordWrap(true);
    aboutLayout->addWidget(labelDeathzone);
    aboutLayout->addWidget(labelDeathzoneNote);
    aboutLayout->addStretch(1);

    cards->addWidget(controls);
    cards->addWidget(about, 1);
    layout->addLayout(cards, 1);
    labelSelectDZKey->setText(tr("当前选择按键数量:0"));
    retranslate();
}

float MagicDeadZonePage::top() const
{
    return frameDead->paneValue(true);
}

float MagicDeadZonePage::bottom() const
{
    return frameDead->paneValue(false);
}

void MagicDeadZonePage::setSelectionText(const QString& text)
{
    labelSelectDZKey->setText(text);
}

void MagicDeadZonePage::retranslate()
{
    labelTitle2->setText(tr("死区设置"));
    labelDeathzone->setText(tr("按键死区设定"));
    labelDeathzoneNote->setText(
        tr("触底到抬起前的距离俗称“死区”。死区可减少磁轴因环境干扰带来的断触问题，磁轴的底部可"
           "自定义，您可根据个人需求自定义死区，设定之后，此段行程不会触发。"));
    pushButtonSetDeathzone->setText(tr("设置"));
    frameDead->setPaneTitles(tr("顶部死区"), tr("底部死区"));
}

void MagicDeadZonePage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QWidget::changeEvent(event);
}
