#include "FrameAbout.h"

#include "ui_FrameAbout.h"

#include "ModuleVideoItem.h"

#include <QEvent>

FrameAbout::FrameAbout(QWidget* parent) : QFrame(parent), ui(std::make_unique<Ui::FrameAbout>())
{
    ui->setupUi(this);
    // Placeholders until the tutorials exist; the version texts are the form's own on purpose.
    for (int i = 0; i < kVideoCards; ++i) {
        auto* card = new ModuleVideoItem(ui->scrollAreaWidgetContents);
        card->setFixedSize(kVideoCardSize);
        ui->gridLayoutVideos->addWidget(card, i / kVideoColumns, i % kVideoColumns);
    }
}

FrameAbout::~FrameAbout() = default;

void FrameAbout::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) ui->retranslateUi(this);
    QFrame::changeEvent(event);
}
