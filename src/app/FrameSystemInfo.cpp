#include "FrameSystemInfo.h"

#include "ui_FrameSystemInfo.h"

#include "AppLog.h"
#include "Platform.h"

#include <QCoreApplication>
#include <QEvent>

FrameSystemInfo::FrameSystemInfo(Platform& system, QWidget* parent)
    : QFrame(parent), platform(system), ui(std::make_unique<Ui::FrameSystemInfo>())
{
    ui->setupUi(this);
    // A machine-wide entry of an older install would start a second hub: it goes on every
    // opening (a system that refuses keeps it, silently).
    platform.clearMachineAutostart();
    ui->checkBox->setChecked(!platform.autostartProgram().isEmpty());

    connect(ui->pushButtonOK, &QPushButton::clicked, this, [this] { finish(true); });
    connect(ui->pushButtonCancel, &QPushButton::clicked, this, [this] { finish(false); });
    connect(ui->pushButtonClose, &QPushButton::clicked, this, [this] { finish(false); });
}

FrameSystemInfo::~FrameSystemInfo() = default;

void FrameSystemInfo::finish(bool ok)
{
    accepted = ok;
    if (ok) {
        platform.clearAutostart();
        if (ui->checkBox->isChecked() &&
            !platform.setAutostart(QCoreApplication::applicationFilePath()))
            qCWarning(lcApp) << "the autostart entry could not be written";
    }
    emit decided(ok);
    hide();
}

void FrameSystemInfo::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) ui->retranslateUi(this);
    QFrame::changeEvent(event);
}
