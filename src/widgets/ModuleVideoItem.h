#pragma once

#include <QFrame>
#include <memory>

namespace Ui {
class ModuleVideoItem;
}

// A tutorial video card: cover, title, date and length. A placeholder: nothing plays and
// nothing answers a click.
class ModuleVideoItem : public QFrame
{
    Q_OBJECT

public:
    explicit ModuleVideoItem(QWidget* parent = nullptr);
    ~ModuleVideoItem() override;

private:
    std::unique_ptr<Ui::ModuleVideoItem> ui;
};
