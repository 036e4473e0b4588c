#pragma once

#include <QTabWidget>

class CustomTabBar;

// A tab widget with the flat, sliding CustomTabBar.
class NewTabWidget : public QTabWidget
{
    Q_OBJECT

public:
    explicit NewTabWidget(QWidget* parent = nullptr);

    CustomTabBar* customTabBar() const;
};
