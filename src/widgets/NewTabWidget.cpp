#include "NewTabWidget.h"

#include "CustomTabBar.h"

NewTabWidget::NewTabWidget(QWidget* parent) : QTabWidget(parent)
{
    setTabBar(new CustomTabBar(this));
}

CustomTabBar* NewTabWidget::customTabBar() const
{
    return static_cast<CustomTabBar*>(tabBar());
}
