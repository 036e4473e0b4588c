#include "FrameMain.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

namespace {
constexpr QSize kPictureBox{760, 320};
}

FrameMain::FrameMain(QWidget* parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("FrameMain"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);

    auto* frameTop = new QFrame(this);
    frameTop->setObjectName(QStringLiteral("frameTop"));
    auto* topLayout = new QHBoxLayout(frameTop);
    topLayout->setContentsMargins(0, 0, 0, 0);
    auto* frameInfo = new QFrame(frameTop);
    frameInfo->setObjectName(QStringLiteral("frameInfo"));
    frameInfo->setStyleSheet(
        QStringLiteral("#frameInfo { background-color: #F6F6F6; border-radius: 24px; }"));
    frameInfo->setFixedHeight(kPictureBox.height() + 60);
    auto* infoLayout = new QVBoxLayout(frameInfo);
    labelPic = new QLabel(frameInfo);
    labelPic->setObjectName(QStringLiteral("labelPic"));
    labelPic->setAlignment(Qt::AlignCenter);
    labelPic->setPixmap(QPixmap(QStringLiteral(":/images/Orbe-Kb3.png")));
    labelPic->hide();
    infoLayout->addWidget(labelPic, 0, Qt::AlignCenter);
    topLayout->addWidget(frameInfo, 1);
    layout->addWidget(frameTop);
    layout->addStretch(1);
}

void FrameMain::setDevicePicture(const QString& path)
{
    const QPixmap picture(path);
    if (!picture.isNull())
        labelPic->setPixmap(
            picture.scaled(kPictureBox, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    labelPic->show();
}
