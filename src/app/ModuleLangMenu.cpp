#include "ModuleLangMenu.h"

#include "ui_ModuleLangMenu.h"

#include "Languages.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCoreApplication>
#include <QPushButton>

namespace {
constexpr QSize kButtonSize(90, 24);
} // namespace

ModuleLangMenu::ModuleLangMenu(QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::ModuleLangMenu>())
{
    ui->setupUi(this);
    group = new QButtonGroup(this);
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_TranslucentBackground);

    const QStringList& names = languageNames();
    for (int index = 0; index < names.size(); ++index) {
        auto* button = new QPushButton(names.at(index), this);
        button->setObjectName(QStringLiteral("pushButtonLang%1").arg(index));
        button->setCheckable(true);
        button->setFixedSize(kButtonSize);
        button->setFocusPolicy(Qt::NoFocus);
        button->setCursor(Qt::PointingHandCursor);
        group->addButton(button, index);
        ui->verticalLayout->addWidget(button);
    }

    connect(group, &QButtonGroup::idClicked, this, [this](int id) {
        hide();
        emit onLangChanged(id, languageNames().at(id));
    });
}

ModuleLangMenu::~ModuleLangMenu() = default;

const QStringList& ModuleLangMenu::languageNames()
{
    static const QStringList names = [] {
        QStringList list;
        for (const Language& language : kLanguages)
            list << QCoreApplication::translate("ModuleLangMenu", language.menuText);
        return list;
    }();
    return names;
}

void ModuleLangMenu::selectLanguage(int index)
{
    if (QAbstractButton* button = group->button(index)) button->click();
}
