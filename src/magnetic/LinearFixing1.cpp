#include "LinearFixing1.h"

#include "DialogDeviceConnect.h"
#include "LinearFixing2.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr QColor kVeil{120, 120, 120, 204}; // 80 % of a grey

// By name: the progress view's keyboard inherits this sheet and keeps its own key styles.
const char* const kStyle = R"(
QWidget#pContentWidget, QWidget#MyContentWidget { background-color: #FFFFFF;
    border-radius: 24px; }
QLabel#labelTitle { color: #1A1A1A; font-size: 18px; font-weight: 600; }
QLabel#labelText { color: #4A4A52; font-size: 13px; }
QPushButton#pushButtonCancel, QPushButton#pushButtonStart, QPushButton#pushButtonFinish {
    font-size: 14px; min-height: 34px; min-width: 112px; border-radius: 17px;
    padding: 0px 16px; }
QPushButton#pushButtonCancel { background-color: #FFFFFF; color: #333333;
    border: 1px solid #E2E2E2; }
QPushButton#pushButtonCancel:hover { border-color: #6329B6; color: #6329B6; }
QPushButton#pushButtonStart, QPushButton#pushButtonFinish { background-color: #6329B6;
    color: #FFFFFF; border: none; }
QPushButton#pushButtonStart:hover, QPushButton#pushButtonFinish:hover {
    background-color: #7A45C8; }
)";

} // namespace

LinearFixing1::LinearFixing1(DialogDeviceConnect* connection, Clock* clockIn, QWidget* parent)
    : QDialog(parent, Qt::Tool | Qt::FramelessWindowHint), device(connection), clock(clockIn)
{
    setObjectName(QStringLiteral("LinearFixing1"));
    setAttribute(Qt::WA_TranslucentBackground);
    setModal(true);
    setStyleSheet(QLatin1String(kStyle));
    const QRect area =
        parent ? parent->window()->frameGeometry() : QGuiApplication::primaryScreen()->geometry();
    setGeometry(area);

    pContentWidget = new QWidget(this);
    pContentWidget->setObjectName(QStringLiteral("pContentWidget"));
    pContentWidget->setAttribute(Qt::WA_StyledBackground);
    pContentWidget->setFixedSize(kBoxSize);
    auto* box = new QVBoxLayout(pContentWidget);
    box->setContentsMargins(28, 22, 28, 22);
    box->setSpacing(12);
    labelTitle = new QLabel(pContentWidget);
    labelTitle->setObjectName(QStringLiteral("labelTitle"));
    labelText = new QLabel(pContentWidget);
    labelText->setObjectName(QStringLiteral("labelText"));
    labelText->setWordWrap(true);
    pushButtonCancel = new QPushButton(pContentWidget);
    pushButtonCancel->setObjectName(QStringLiteral("pushButtonCancel"));
    pushButtonStart = new QPushButton(pContentWidget);
    pushButtonStart->setObjectName(QStringLiteral("pushButtonStart"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (QPushButton* button : {pushButtonCancel, pushButtonStart}) {
        button->setCursor(Qt::PointingHandCursor);
        button->setFocusPolicy(Qt::NoFocus);
        buttons->addWidget(button);
    }
    box->addWidget(labelTitle);
    box->addWidget(labelText, 1);
    box->addLayout(buttons);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(pContentWidget, 0, Qt::AlignCenter);
    retranslate();

    connect(pushButtonCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(pushButtonStart, &QPushButton::clicked, this, &LinearFixing1::startCalibration);
}

LinearFixing1::~LinearFixing1() = default;

QString LinearFixing1::guideText()
{
    return tr(
        "请依次将每个按键轻按到底并停留至少1秒钟，直到按键变为橙色（表示该按键校准成功），请勿遗"
        "漏，可重复按按键。无线下不支持按键校准个数提示。校准过程中请勿拔出数据线。");
}

void LinearFixing1::startCalibration()
{
    if (progressView) return;
    device->DoStartCalibration();
    progressView = new LinearFixing2(device, clock, frameGeometry(), this);
    progressView->setAttribute(Qt::WA_DeleteOnClose);
    // Finish and cancel are the same to the keyboard: the calibration ends either way, and the
    // keyboard decides what it keeps.
    connect(progressView, &QDialog::finished, this, [this] {
        progressView = nullptr;
        device->DoStopCalibration();
        reject();
    });
    progressView->open();
}

void LinearFixing1::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), kVeil);
}

void LinearFixing1::retranslate()
{
    labelTitle->setText(tr("行程校准操作指南"));
    labelText->setText(guideText());
    pushButtonCancel->setText(tr("取消"));
    pushButtonStart->setText(tr("开始校准"));
}

void LinearFixing1::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QDialog::changeEvent(event);
}
