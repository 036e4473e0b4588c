#pragma once

#include <QDialog>
#include <QStringList>
#include <memory>

class QButtonGroup;

namespace Ui {
class ModuleLangMenu;
}

// The language drop-down: one checkable button per language of kLanguages, the index as the
// button's id. A click hides the menu and announces the choice.
class ModuleLangMenu : public QDialog
{
    Q_OBJECT

public:
    explicit ModuleLangMenu(QWidget* parent = nullptr);
    ~ModuleLangMenu() override;

    // The menu texts, translated once on first use.
    static const QStringList& languageNames();

    // Clicks the button of that index, as the user would; an unknown index does nothing.
    void selectLanguage(int index);

signals:
    void onLangChanged(int langId, QString lang);

private:
    std::unique_ptr<Ui::ModuleLangMenu> ui;
    QButtonGroup* group;
};
