#include "ModuleVideoItem.h"

#include "ui_ModuleVideoItem.h"

#include "WidgetResources.h"

ModuleVideoItem::ModuleVideoItem(QWidget* parent)
    : QFrame(parent), ui(std::make_unique<Ui::ModuleVideoItem>())
{
    WidgetResources::ensureLoaded(); // the cover picture
    ui->setupUi(this);
}

ModuleVideoItem::~ModuleVideoItem() = default;
