#include "LinearFixing2.h"

#include "CommandLayouts.h"
#include "DialogDeviceConnect.h"
#include "KeyPositions.h"
#include "LinearFixing1.h"
#include "ModuleKeyboard.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int kValues = 128;
constexpr int kValueSize = 2;

} // namespace

LinearFixing2::LinearFixing2(DialogDeviceConnect* device, Clock* clock, const QRect& screen,
                             QWidget* parent)
    : QDialog(parent, Qt::Tool | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("LinearFixing2"));
    setAttribute(Qt::WA_TranslucentBackground);
    setModal(true);
    // The guide's look: its style sheet reaches this dialog as its child.
    setGeometry(screen);
    setFixedSize(screen.size());

    MyContentWidget = new QWidget(this);
    MyContentWidget->setObjectName(QStringLiteral("MyContentWidget"));
    MyContentWidget->setAttribute(Qt::WA_StyledBackground);
    auto* box = new QVBoxLayout(MyContentWidget);
    box->setContentsMargins(32, 24, 32, 24);
    box->setSpacing(12);
    labelTitle = new QLabel(MyContentWidget);
    labelTitle->setObjectName(QStringLiteral("labelTitle"));
    labelText = new QLabel(MyContentWidget);
    labelText->setObjectName(QStringLiteral("labelText"));
    labelText->setWordWrap(true);
    // A keyboard that only shows: nothing on it writes to the device.
    frameKeyboard = new ModuleKeyboard(nullptr, clock, MyContentWidget);
    frameKeyboard->setObjectName(QStringLiteral("frameKeyboard"));
    frameKeyboard->setFixedSize(960, 350);
    frameKeyboard->lockKeyboard();
    pushButtonCancel = new QPushButton(MyContentWidget);
    pushButtonCancel->setObjectName(QStringLiteral("pushButtonCancel"));
    pushButtonFinish = new QPushButton(MyContentWidget);
    pushButtonFinish->setObjectName(QStringLiteral("pushButtonFinish"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (QPushButton* button : {pushButtonCancel, pushButtonFinish}) {
        button->setCursor(Qt::PointingHandCursor);
        button->setFocusPolicy(Qt::NoFocus);
        buttons->addWidget(button);
    }
    box->addWidget(labelTitle);
    box->addWidget(labelText);
    box->addWidget(frameKeyboard, 0, Qt::AlignHCenter);
    box->addLayout(buttons);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(MyContentWidget, 0, Qt::AlignCenter);
    retranslate();

    connect(pushButtonCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(pushButtonFinish, &QPushButton::clicked, this, &QDialog::accept);
    connect(device, &DialogDeviceConnect::onCalibration, this, &LinearFixing2::onCalibration);
}

void LinearFixing2::onCalibration(const QByteArray& data)
{
    // A scan that began part-way through the page cycle is short; only what came is read.
    const int count = qMin(kValues, int(data.size()) / kValueSize);
    for (int index = 0; index < count; ++index) {
        const quint16 value =
            quint16(CommandLayouts::leAt(data, std::size_t(index * kValueSize), 2));
        const quint16 threshold = index == kShortRangeIndex ? kShortRangeDoneAbove : kDoneAbove;
        // A mark is never taken back; a key already orange is marked again.
        if (value > threshold) frameKeyboard->markKeyHit(CodeOfPosition(quint8(index)));
    }
}

void LinearFixing2::retranslate()
{
    labelTitle->setText(LinearFixing1::tr("行程校准"));
    labelText->setText(LinearFixing1::guideText());
    pushButtonCancel->setText(LinearFixing1::tr("取消"));
    pushButtonFinish->setText(tr("完成校准"));
}

void LinearFixing2::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QDialog::changeEvent(event);
}
