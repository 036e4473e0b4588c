#include "MainWindowForm.h"

#include "FrameDeviceHolder.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

const char* const kFormStyle = R"(
QPushButton#pushButtonLang { background-color: transparent; border: 1px solid #E2E2E2;
    border-radius: 16px; padding: 0px 14px 0px 10px; min-height: 32px; font-size: 14px;
    color: #333333; }
QPushButton#pushButtonSet, QPushButton#pushButtonMin, QPushButton#pushButtonExit {
    background-color: transparent; border: none; border-radius: 16px; }
QPushButton#pushButtonLang:hover, QPushButton#pushButtonSet:hover,
QPushButton#pushButtonMin:hover { background-color: rgba(99, 41, 182, 0.10); }
QPushButton#pushButtonExit:hover { background-color: rgba(230, 60, 60, 0.16); }
QLabel#labelInfo0 { font-size: 26px; font-weight: 700; color: #1A1A1A; }
QLabel#labelHint { font-size: 14px; color: #8A8A8A; }
QPushButton#pushButtonScan { background-color: #6329B6; color: #FFFFFF; border: none;
    border-radius: 18px; padding: 0px 22px; min-height: 36px; font-size: 14px; }
QPushButton#pushButtonScan:hover { background-color: #7A45C9; }
QPushButton#pushButtonScan:pressed { background-color: #4F2092; }
QScrollArea#scrollArea { background: transparent; border: none; }
QWidget#scrollAreaWidgetContents { background: transparent; }
)";

constexpr QSize kWindowButton{32, 32};
constexpr QSize kWindowIcon{22, 22};
constexpr QRect kLogoRect{30, 25, 136, 40};

QPushButton* titleButton(QWidget* parent, const char* name, const char* icon)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setIcon(QIcon(QLatin1String(icon)));
    button->setIconSize(kWindowIcon);
    button->setCursor(Qt::PointingHandCursor);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

} // namespace

void MainWindowForm::setupUi(QMainWindow* window, DialogDeviceConnect* connection,
                             ModuleGenKeymapping& keys, ModuleMacroManager& macros,
                             const QString& worksFolder, Clock* clock)
{
    window->setObjectName(QStringLiteral("MainWindow"));
    centralwidget = new QWidget(window);
    centralwidget->setObjectName(QStringLiteral("centralwidget"));
    centralwidget->setStyleSheet(QLatin1String(kFormStyle));
    auto* layout = new QVBoxLayout(centralwidget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(buildTitle(centralwidget));

    stackedWidget = new QStackedWidget(centralwidget);
    stackedWidget->setObjectName(QStringLiteral("stackedWidget"));
    stackedWidget->addWidget(buildCardPage());

    page01 = new QWidget;
    page01->setObjectName(QStringLiteral("page01"));
    auto* embLayout = new QVBoxLayout(page01);
    embLayout->setContentsMargins(0, 0, 0, 0);
    frameEmb = new QFrame(page01);
    frameEmb->setObjectName(QStringLiteral("frameEmb"));
    embLayout->addWidget(frameEmb);
    stackedWidget->addWidget(page01);

    page02 = new QWidget;
    page02->setObjectName(QStringLiteral("page02"));
    auto* holdLayout = new QVBoxLayout(page02);
    holdLayout->setContentsMargins(0, 0, 0, 0);
    frameHold = new FrameDeviceHolder(connection, keys, macros, worksFolder, clock, page02);
    frameHold->setObjectName(QStringLiteral("frameHold"));
    holdLayout->addWidget(frameHold);
    stackedWidget->addWidget(page02);

    layout->addWidget(stackedWidget, 1);
    window->setCentralWidget(centralwidget);
    retranslateUi(window);
}

QWidget* MainWindowForm::buildTitle(QWidget* parent)
{
    auto* title = new QWidget(parent);
    title->setObjectName(QStringLiteral("frameTitle"));
    title->setFixedHeight(kTitleHeight);
    labelLogo = new QLabel(title);
    labelLogo->setObjectName(QStringLiteral("labelLogo"));
    labelLogo->setGeometry(kLogoRect);
    labelLogo->setAttribute(Qt::WA_TransparentForMouseEvents);

    auto* layout = new QHBoxLayout(title);
    layout->setContentsMargins(0, 0, 28, 0);
    layout->setSpacing(10);
    layout->addStretch(1);
    pushButtonLang = titleButton(title, "pushButtonLang", ":/images/ic-lang.png");
    pushButtonSet = titleButton(title, "pushButtonSet", ":/images/ic-set.png");
    pushButtonMin = titleButton(title, "pushButtonMin", ":/images/ic-min.png");
    pushButtonExit = titleButton(title, "pushButtonExit", ":/images/ic-close.png");
    layout->addWidget(pushButtonLang);
    layout->addSpacing(6);
    for (QPushButton* button : {pushButtonSet, pushButtonMin, pushButtonExit}) {
        button->setFixedSize(kWindowButton);
        layout->addWidget(button);
    }
    return title;
}

QWidget* MainWindowForm::buildCardPage()
{
    page00 = new QWidget;
    page00->setObjectName(QStringLiteral("page00"));
    auto* layout = new QVBoxLayout(page00);
    layout->setContentsMargins(40, 12, 40, 48);
    layout->setSpacing(8);

    auto* heading = new QHBoxLayout;
    labelInfo0 = new QLabel(page00);
    labelInfo0->setObjectName(QStringLiteral("labelInfo0"));
    heading->addWidget(labelInfo0);
    heading->addStretch(1);
    pushButtonScan = new QPushButton(page00);
    pushButtonScan->setObjectName(QStringLiteral("pushButtonScan"));
    pushButtonScan->setCursor(Qt::PointingHandCursor);
    pushButtonScan->setFocusPolicy(Qt::NoFocus);
    heading->addWidget(pushButtonScan);
    layout->addLayout(heading);

    auto* hint = new QLabel(page00);
    hint->setObjectName(QStringLiteral("labelHint"));
    layout->addWidget(hint);
    layout->addStretch(1);

    auto* row = new QHBoxLayout;
    labelPrev = new QLabel(page00);
    labelPrev->setObjectName(QStringLiteral("labelPrev"));
    labelNext = new QLabel(page00);
    labelNext->setObjectName(QStringLiteral("labelNext"));
    for (QLabel* arrow : {labelPrev, labelNext}) {
        arrow->setFixedSize(48, 48);
        arrow->setScaledContents(true);
        arrow->setCursor(Qt::PointingHandCursor);
    }
    labelPrev->setPixmap(QPixmap(QStringLiteral(":/images/a-left.png")));
    labelNext->setPixmap(QPixmap(QStringLiteral(":/images/a-right.png")));

    scrollArea = new QScrollArea(page00);
    scrollArea->setObjectName(QStringLiteral("scrollArea"));
    scrollArea->setWidgetResizable(true);
    scrollArea->setFrameShape(QFrame::NoFrame);
    scrollAreaWidgetContents = new QWidget;
    scrollAreaWidgetContents->setObjectName(QStringLiteral("scrollAreaWidgetContents"));
    cardLayout = new QHBoxLayout(scrollAreaWidgetContents);
    cardLayout->setObjectName(QStringLiteral("cardLayout"));
    cardLayout->setContentsMargins(0, 0, 0, 0);
    cardLayout->setAlignment(Qt::AlignCenter);
    scrollArea->setWidget(scrollAreaWidgetContents);
    scrollArea->viewport()->setAutoFillBackground(false);
    scrollArea->setFixedHeight(360);

    row->addWidget(labelPrev);
    row->addWidget(scrollArea, 1);
    row->addWidget(labelNext);
    layout->addLayout(row);
    layout->addStretch(2);
    return page00;
}

void MainWindowForm::retranslateUi(QMainWindow* window)
{
    Q_UNUSED(window);
    pushButtonSet->setToolTip(tr("设置"));
    pushButtonMin->setToolTip(tr("最小化"));
    pushButtonExit->setToolTip(tr("退出"));
    pushButtonScan->setText(tr("重新搜索"));
    if (auto* hint = page00->findChild<QLabel*>(QStringLiteral("labelHint")))
        hint->setText(tr("点击设备进入设置"));
}
